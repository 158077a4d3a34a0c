// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <vector>

#include "toolkit/view/UIViewState.h"

namespace kindora {

class UIViewAnimatable;

/// Catches the changes that a closure makes to views, so that they can be shown over time.
///
/// Changes start from what each view shows at that moment. A later block that touches a view takes
/// it over from an earlier one.
class UIViewAnimationBlock {
 public:
  /// Runs the closure and records every view that it changes. Blocks do not nest.
  explicit UIViewAnimationBlock(const std::function<void()>& animations);

  /// Shows every caught view, in the order of their first changes, at the fraction of its way, 0 to
  /// 1 (springs overshoot).
  void show(double fraction) const;

  /// The block whose closure runs now; null outside.
  [[nodiscard]] static UIViewAnimationBlock* current();
  /// Remembers what the view shows before its first change in this block.
  void willChange(const std::shared_ptr<UIViewAnimatable>& view);

 private:
  struct Track {
    std::weak_ptr<UIViewAnimatable> view;
    UIViewState from;
    UIViewState to;
    std::uint64_t revision = 0;  // of the view's state when the closure had run
  };
  std::vector<Track> tracks_;
  // By owner: another view may come to lie where one has gone.
  std::set<std::weak_ptr<UIViewAnimatable>, std::owner_less<>> known_;
};

}  // namespace kindora
