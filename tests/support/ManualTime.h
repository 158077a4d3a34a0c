// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAnimationDriver>
#include <memory>

#include "platform/fakes/ManualQueue.h"

namespace kindora {

/// Moves the main queue and Qt's animations together, by hand and a millisecond at a time.
class ManualTime final {
 public:
  explicit ManualTime(std::shared_ptr<ManualQueue> queue);
  ~ManualTime();

  /// Rounded to whole milliseconds.
  void advance(double seconds);
  /// Runs what is due now: queued calls, closures, deletions.
  void settle();
  /// Whether any animation runs.
  [[nodiscard]] bool isAnimating() const { return driver_.isRunning(); }

 private:
  class Driver final : public QAnimationDriver {
   public:
    [[nodiscard]] qint64 elapsed() const override { return now_; }
    void step();

   protected:
    // The clock counts from the moment at which animations begin to run.
    void start() override;

   private:
    qint64 now_ = 0;  // milliseconds
  };

  std::shared_ptr<ManualQueue> queue_;
  Driver driver_;
};

}  // namespace kindora
