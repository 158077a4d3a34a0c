// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string_view>

#include "platform/FatalError.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// Somebody whose views a storyboard draws, found by the name of their outlet.
class OutletOwner {
 public:
  virtual ~OutletOwner() = default;
  /// The view of that name; null when there is none.
  [[nodiscard]] virtual UIViewRef outlet(std::string_view name) = 0;
};

/// The view of an outlet about to be used. Stops when the outlet was not connected.
template <typename View>
[[nodiscard]] std::shared_ptr<View> connected(const std::weak_ptr<View>& outlet) {
  std::shared_ptr<View> view = outlet.lock();
  if (!view) fatalError("an outlet is not connected");
  return view;
}

/// Makes a view inside another and connects an outlet to it: what a storyboard does for each
/// outlet.
template <typename View>
std::shared_ptr<View> connectOutlet(std::weak_ptr<View>& outlet, std::string_view name,
                                    UIView& superview) {
  auto view = std::make_shared<View>();
  view->setName(name);
  view->setPlacer(UIViewPlacer::page);
  superview.addSubview(view);
  outlet = view;
  return view;
}

}  // namespace kindora
