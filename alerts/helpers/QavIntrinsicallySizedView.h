// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/view/UIView.h"

namespace kindora {

/// A subview that only marks a place: it does not count for what its superview takes.
class UILayoutSupport {
 public:
  virtual ~UILayoutSupport() = default;
};

/// A view as large as what stands in it: the box around its subviews, wherever that is. Hidden ones
/// count, transforms do not. Without subviews it has no size of its own.
class QavIntrinsicallySizedView final : public UIView {
 public:
  [[nodiscard]] CGSize intrinsicContentSize() const override;

 protected:
  void layoutSubviews() override;
};

}  // namespace kindora
