// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>

namespace kindora {

class LayoutEngine;
class UIView;

/// What is to be laid out in a tree of views, and the passes that do it. Any view may come to be a
/// topmost one; only what the topmost view has of these counts.
class LayoutPasses final {
 public:
  explicit LayoutPasses(UIView& root);
  ~LayoutPasses();
  LayoutPasses(const LayoutPasses&) = delete;
  LayoutPasses& operator=(const LayoutPasses&) = delete;

  /// Views, constraints, or what constraints place have come or gone.
  void structureChanged() { structureChanged_ = true; }
  void constantsChanged() { constantsChanged_ = true; }
  /// True when somebody has to see to it that passes are run: nobody was told, and none runs now.
  [[nodiscard]] bool schedule();
  /// The view was part of another tree meanwhile: nobody was told.
  void unschedule() { isScheduled_ = false; }

  /// Has constraints place the views and then the views lay themselves out, until nothing is left
  /// to do. Without an end after many rounds (views that never agree) it stops where it is.
  void run(const std::function<void()>& layOutMarkedViews);

 private:
  UIView& root_;
  std::unique_ptr<LayoutEngine> engine_;  // made for the first pass
  bool structureChanged_ = true;
  bool constantsChanged_ = true;
  bool isScheduled_ = false;
  bool isRunning_ = false;
};

}  // namespace kindora
