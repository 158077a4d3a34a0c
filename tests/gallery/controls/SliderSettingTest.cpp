// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/controls/SliderSetting.h"

#include <gtest/gtest.h>

#include <limits>

namespace kindora {
namespace {

class SliderSettingTest : public ::testing::Test {
 protected:
  SliderSettingTest() {
    QObject::connect(&setting, &SliderSetting::valueChanged, [this] { ++told; });
  }

  SliderSetting setting{{.name = QStringLiteral("Mass"),
                         .minimum = -1,
                         .maximum = 2.2,
                         .step = 0.5,
                         .value = 1,
                         .unit = QStringLiteral("kg")}};
  int told = 0;
};

TEST_F(SliderSettingTest, RoundsToAStep) {
  setting.setValue(0.3);
  EXPECT_EQ(setting.value(), 0.5);
  EXPECT_EQ(told, 1);
}

TEST_F(SliderSettingTest, StopsAtEitherEnd) {
  setting.setValue(-7);
  EXPECT_EQ(setting.value(), -1);
  setting.setValue(std::numeric_limits<double>::infinity());
  EXPECT_LE(setting.value(), 2.2);
  EXPECT_GE(setting.value(), 2.0);
}

TEST_F(SliderSettingTest, TellsNobodyWhenNothingChanges) {
  setting.setValue(1.1);
  setting.setValue(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(setting.value(), 1);
  EXPECT_EQ(told, 0);
}

TEST_F(SliderSettingTest, ReadsWithItsUnit) {
  EXPECT_EQ(setting.text(), QStringLiteral("1.0 kg"));
  setting.setValue(-0.1);
  EXPECT_EQ(setting.text(), QStringLiteral("0.0 kg"));
}

}  // namespace
}  // namespace kindora
