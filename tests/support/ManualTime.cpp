// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/support/ManualTime.h"

#include <QCoreApplication>
#include <QEvent>
#include <chrono>
#include <cmath>
#include <utility>

namespace kindora {

void ManualTime::Driver::step() {
  ++now_;
  if (isRunning()) advanceAnimation();
}

void ManualTime::Driver::start() {
  now_ = 0;
  QAnimationDriver::start();
}

ManualTime::ManualTime(std::shared_ptr<ManualQueue> queue) : queue_(std::move(queue)) {
  driver_.install();
}

ManualTime::~ManualTime() { driver_.uninstall(); }

void ManualTime::settle() {
  queue_->runPending();
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ManualTime::advance(double seconds) {
  settle();
  const long milliseconds = std::lround(seconds * 1000);
  for (long i = 0; i < milliseconds; ++i) {
    queue_->advance(std::chrono::milliseconds(1));
    driver_.step();
    settle();
  }
}

}  // namespace kindora
