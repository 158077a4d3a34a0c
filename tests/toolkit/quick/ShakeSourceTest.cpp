// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ShakeSource.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <array>

#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UIResponder.h"

namespace kindora {
namespace {

using Time = ShakeRecognizer::Time;

class ShakeEar final : public UIResponder {
 public:
  [[nodiscard]] bool canBecomeFirstResponder() const override { return true; }
  void motionEnded(UIEventSubtype /*motion*/) override { ++shakes; }
  int shakes = 0;
};

// A phone with an accelerometer and a window, and somebody who hears shakes. Its clock is moved by
// hand.
class ShakeSourceTest : public QuickFixture {
 protected:
  ShakeSourceTest() {
    QDir(folder.path()).mkpath(QStringLiteral("iio:device0"));
    hold({0, 9.81, 0});
    source =
        std::make_unique<ShakeSource>(Accelerometer::find(folder.path()), [this] { return now; });
    UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(true);
    ear.becomeFirstResponder();
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    source->setWindow(&window);
  }
  ~ShakeSourceTest() override {
    UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(false);
  }

  void hold(const std::array<double, 3>& acceleration) const {
    for (std::size_t axis = 0; axis < acceleration.size(); ++axis) {
      QFile file(folder.filePath(QStringLiteral("iio:device0/in_accel_%1_raw")
                                     .arg(QLatin1Char(static_cast<char>('x' + axis)))));
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(QByteArray::number(acceleration[axis]));
    }
  }
  // The hand goes to and fro that often, a sample every 20 ms.
  void shakePhone(int swings, const std::array<double, 3>& strength) {
    for (int i = 0; i < swings * 4; ++i) {
      const double way = (i / 4) % 2 == 0 ? 1 : -1;
      hold({way * strength[0], 9.81 + way * strength[1], way * strength[2]});
      source->sample();
      now += Time(20);
    }
    hold({0, 9.81, 0});
  }
  void shakeWindow(int swings, QPoint reach) {
    for (int i = 0; i < swings; ++i) {
      window.setPosition(kWindowPlace + (i % 2 == 0 ? reach : QPoint()));
      QCoreApplication::processEvents();
      now += Time(60);
    }
  }
  void rest(Time time) {
    for (const Time until = now + time; now < until; now += Time(20)) source->sample();
  }

  static constexpr QPoint kWindowPlace{200, 200};
  QTemporaryDir folder;
  Time now{0};
  ShakeEar ear;
  std::unique_ptr<ShakeSource> source;
};

TEST_F(ShakeSourceTest, AShakenPhoneIsHeard) {
  shakePhone(6, {15, 0, 0});
  EXPECT_EQ(ear.shakes, 1);
}

TEST_F(ShakeSourceTest, APhoneThatIsHeldOrTurnedIsNot) {
  rest(Time(1000));
  shakePhone(8, {4, 4, 4});
  EXPECT_EQ(ear.shakes, 0);
}

TEST_F(ShakeSourceTest, AHeartyShakeOfThePhoneAlongAllAxesIsOne) {
  shakePhone(30, {25, 25, 25});
  shakePhone(10, {25, 0, 0});
  shakePhone(10, {0, 0, 25});
  EXPECT_EQ(ear.shakes, 1);
}

TEST_F(ShakeSourceTest, ThePhoneIsShakenAgainAfterARest) {
  shakePhone(6, {15, 0, 0});
  rest(Time(600));
  shakePhone(6, {0, 0, 15});
  EXPECT_EQ(ear.shakes, 2);
}

TEST_F(ShakeSourceTest, AShakenWindowIsHeard) {
  shakeWindow(6, {60, 0});
  EXPECT_EQ(ear.shakes, 1);
}

TEST_F(ShakeSourceTest, AWindowThatIsMovedIsNot) {
  for (int i = 0; i < 20; ++i) {
    window.setPosition(kWindowPlace + QPoint(30 * i, 0));
    QCoreApplication::processEvents();
    now += Time(30);
  }
  EXPECT_EQ(ear.shakes, 0);
}

TEST_F(ShakeSourceTest, AHeartyShakeOfTheWindowAslantIsOne) {
  shakeWindow(30, {80, 80});
  EXPECT_EQ(ear.shakes, 1);
}

TEST_F(ShakeSourceTest, TheWindowIsShakenAgainAfterARest) {
  shakeWindow(6, {60, 0});
  now += Time(600);
  shakeWindow(6, {0, 60});
  EXPECT_EQ(ear.shakes, 2);
}

TEST_F(ShakeSourceTest, ReadsTheAccelerometerOnlyWhileSomebodyListens) {
  EXPECT_TRUE(source->isSampling());
  UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(false);
  EXPECT_FALSE(source->isSampling());
  UIApplication::sharedApplication()->setApplicationSupportsShakeToEdit(true);
  EXPECT_TRUE(source->isSampling());
  source->setWindow(nullptr);
  EXPECT_FALSE(source->isSampling());
}

TEST_F(ShakeSourceTest, WithoutAnAccelerometerOnlyTheWindowIsShaken) {
  source = std::make_unique<ShakeSource>(std::nullopt, [this] { return now; });
  source->setWindow(&window);
  EXPECT_FALSE(source->isSampling());
  shakePhone(6, {15, 0, 0});
  EXPECT_EQ(ear.shakes, 0);
  shakeWindow(6, {60, 0});
  EXPECT_EQ(ear.shakes, 1);
}

}  // namespace
}  // namespace kindora
