// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/Accelerometer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace kindora {
namespace {

// A folder of devices as the kernel lays it out.
class AccelerometerTest : public ::testing::Test {
 protected:
  void write(const QString& name, const QByteArray& text) const {
    QDir(folder.path()).mkpath(QStringLiteral("iio:device1"));
    QFile file(folder.filePath(QStringLiteral("iio:device1/") + name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  QTemporaryDir folder;
};

TEST_F(AccelerometerTest, IsNotThereWithoutADevice) {
  EXPECT_FALSE(Accelerometer::find(folder.path()));
  EXPECT_FALSE(Accelerometer::find(folder.filePath(QStringLiteral("missing"))));
}

TEST_F(AccelerometerTest, IgnoresOtherSensors) {
  write(QStringLiteral("in_illuminance_raw"), "12\n");
  EXPECT_FALSE(Accelerometer::find(folder.path()));
}

TEST_F(AccelerometerTest, ReadsAllAxesInMetresPerSecondSquared) {
  write(QStringLiteral("in_accel_x_raw"), "100\n");
  write(QStringLiteral("in_accel_y_raw"), "-200\n");
  write(QStringLiteral("in_accel_z_raw"), "981\n");
  write(QStringLiteral("in_accel_scale"), "0.01\n");
  const auto accelerometer = Accelerometer::find(folder.path());
  ASSERT_TRUE(accelerometer);
  const auto values = accelerometer->read();
  ASSERT_TRUE(values);
  EXPECT_DOUBLE_EQ((*values)[0], 1);
  EXPECT_DOUBLE_EQ((*values)[1], -2);
  EXPECT_DOUBLE_EQ((*values)[2], 9.81);
}

TEST_F(AccelerometerTest, AnswersNothingForABrokenAxis) {
  write(QStringLiteral("in_accel_x_raw"), "100\n");
  write(QStringLiteral("in_accel_y_raw"), "no number\n");
  write(QStringLiteral("in_accel_z_raw"), "1\n");
  EXPECT_FALSE(Accelerometer::find(folder.path())->read());
}

}  // namespace
}  // namespace kindora
