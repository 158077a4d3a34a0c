// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QSize>
#include <memory>

#include "platform/fakes/FakeHttp.h"
#include "platform/fakes/FakePhotos.h"
#include "platform/fakes/ManualQueue.h"
#include "platform/services/Services.h"
#include "tests/support/ManualTime.h"

namespace kindora {

/// A program of ours, launched as its entry point does it: on the real services, but for time,
/// which is moved by hand, and for the web and the user's pictures, which a test hands in. One a
/// process, since what exists once in a program does not start anew.
class Program final {
 public:
  using Launch = bool (*)(QQmlApplicationEngine& engine, Services installed);

  Program(Launch launch, QSize size);

  [[nodiscard]] QQuickWindow& window() { return *window_; }
  [[nodiscard]] FakePhotos& photos() { return *photos_; }

  /// Lets a frame pass: a fiftieth of a second, after which the window is drawn.
  void frame();
  /// Lets frames pass until nothing moves.
  void rest();
  void pass(double seconds);
  /// Swings the device to and fro in its user's hand, and the window with it.
  void swing(int times);
  /// Turns the device, or resizes the window.
  void resize(QSize size);

 private:
  std::shared_ptr<ManualQueue> queue_ = std::make_shared<ManualQueue>();
  std::shared_ptr<FakePhotos> photos_ = std::make_shared<FakePhotos>(queue_);
  ManualTime time_{queue_};
  QQmlApplicationEngine engine_;
  QQuickWindow* window_ = nullptr;
};

}  // namespace kindora
