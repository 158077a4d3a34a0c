// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <functional>

namespace kindora {

/// Calls a function on the thread in which it lives, through that thread's event loop, once for
/// every time that somebody asks. What the two threads hand over needs a lock of its own.
class Wakeup final : public QObject {
 public:
  explicit Wakeup(std::function<void()> woken);

  /// Asks for a call; any thread.
  void post();

  bool event(QEvent* event) override;

 private:
  std::function<void()> woken_;
};

}  // namespace kindora
