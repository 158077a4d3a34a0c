// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>

#include "toolkit/view/UIView.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

/// Stands for the item that draws a view: says where the view lies, and counts how often a layout
/// was scheduled.
class FakeRenderer final : public UIViewRenderer {
 public:
  explicit FakeRenderer(UIView& view, std::optional<CGPoint> origin = {})
      : view_(view.shared_from_this()), origin_(origin) {
    view_->setRenderer(*this);
  }
  ~FakeRenderer() override { view_->removeRenderer(*this); }
  FakeRenderer(const FakeRenderer&) = delete;
  FakeRenderer& operator=(const FakeRenderer&) = delete;

  [[nodiscard]] std::optional<CGPoint> originInWindow() const override { return origin_; }
  void layoutScheduled() override { ++scheduled; }

  int scheduled = 0;

 private:
  UIViewRef view_;
  std::optional<CGPoint> origin_;
};

}  // namespace kindora
