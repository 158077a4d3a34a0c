// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/TiltSensor.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <vector>

namespace kindora {
namespace {

// An accelerometer in a folder, and what the handler was told.
class TiltSensorTest : public ::testing::Test {
 protected:
  TiltSensorTest() {
    QDir(folder.path()).mkpath(QStringLiteral("iio:device0"));
    hold(0, 9.81, 0);
    sensor = std::make_unique<TiltSensor>(Accelerometer::find(folder.path()));
  }
  void hold(double x, double y, double z) const {
    const std::pair<char, double> values[] = {{'x', x}, {'y', y}, {'z', z}};
    for (const auto& [axis, value] : values) {
      QFile file(
          folder.filePath(QStringLiteral("iio:device0/in_accel_%1_raw").arg(QLatin1Char(axis))));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(QByteArray::number(value));
    }
  }
  void listen() {
    sensor->setTiltHandler([this](double across, double down) { told.push_back({across, down}); });
  }
  void sample(int times) const {
    for (int i = 0; i < times; ++i) sensor->sample();
  }

  QTemporaryDir folder;
  std::unique_ptr<TiltSensor> sensor;
  std::vector<std::pair<double, double>> told;
};

TEST_F(TiltSensorTest, ReadsNothingWithoutAHandler) {
  EXPECT_FALSE(sensor->isSampling());
  sample(3);
  listen();
  sensor->setTiltHandler({});
  EXPECT_FALSE(sensor->isSampling());
}

TEST_F(TiltSensorTest, NeverRunsWithoutAnAccelerometer) {
  TiltSensor without{std::nullopt};
  without.setTiltHandler([this](double, double) { told.push_back({}); });
  EXPECT_FALSE(without.isSampling());
  without.sample();
  EXPECT_TRUE(told.empty());
}

TEST_F(TiltSensorTest, APhoneAtRestTellsNothing) {
  listen();
  sample(20);
  EXPECT_TRUE(told.empty());
}

TEST_F(TiltSensorTest, TellsATilt) {
  listen();
  sample(1);
  hold(-4, 9, 0);
  sample(20);
  ASSERT_FALSE(told.empty());
  EXPECT_GT(told.back().first, 0.5);
  EXPECT_NEAR(told.back().second, 0, 0.01);
}

TEST_F(TiltSensorTest, ANewHandlerStartsFromHowThePhoneIsHeld) {
  listen();
  sample(1);
  hold(-4, 9, 0);
  sample(20);
  told.clear();
  listen();
  sample(20);
  EXPECT_TRUE(told.empty());
}

}  // namespace
}  // namespace kindora
