// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/Program.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QStyleHints>
#include <QTest>
#include <cmath>
#include <stdexcept>

#include "platform/qt/QtServices.h"

namespace kindora {
namespace {

constexpr double kFrame = 0.02;         // seconds
constexpr double kLongestMotion = 6.0;  // seconds

}  // namespace

Program::Program(Launch launch, QSize size) {
  QAccessible::setActive(true);
  // Between two presses a hand takes longer than the clock that Qt reads tells here.
  QGuiApplication::styleHints()->setMouseDoubleClickInterval(0);
  Services installed = makeQtServices();
  installed.mainQueue = queue_;
  installed.http = std::make_shared<FakeHttp>();
  installed.photos = photos_;
  if (!launch(engine_, std::move(installed))) throw std::runtime_error("no window is drawn");
  window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
  resize(size);
  if (!QTest::qWaitForWindowActive(window_)) throw std::runtime_error("the window stays inactive");
  rest();
}

void Program::frame() {
  time_.advance(kFrame);
  QCoreApplication::processEvents();
  QEvent request(QEvent::UpdateRequest);
  QCoreApplication::sendEvent(window_, &request);
}

void Program::rest() {
  constexpr int kStillFrames = 3;
  int still = 0;
  for (double t = 0; t < kLongestMotion && still < kStillFrames; t += kFrame) {
    frame();
    still = time_.isAnimating() ? 0 : still + 1;
  }
}

void Program::pass(double seconds) {
  for (long i = std::lround(seconds / kFrame); i > 0; --i) frame();
}

void Program::swing(int times) {
  const QPoint place = window_->position();
  for (int i = 0; i < times; ++i) {
    window_->setPosition(place + QPoint(i % 2 == 0 ? 60 : 0, 0));
    frame();
  }
  window_->setPosition(place);
  rest();
}

void Program::resize(QSize size) {
  window_->resize(size);
  rest();
}

}  // namespace kindora
