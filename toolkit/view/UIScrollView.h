// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/view/UIView.h"

namespace kindora {

/// A view whose content may be larger than itself. Subviews stand in the content; what is scrolled
/// away does not show.
class UIScrollView : public UIView {
 public:
  UIScrollView() { setClipsToBounds(true); }

  [[nodiscard]] CGSize contentSize() const { return contentSize_; }
  void setContentSize(CGSize size);
  /// How far the content is scrolled: 0 to what does not fit, in each direction.
  [[nodiscard]] CGPoint contentOffset() const { return contentOffset_; }
  /// A place beyond the end stops there.
  void setContentOffset(CGPoint offset);
  /// As far as it takes to see that part of the content.
  void scrollRectToVisible(const CGRect& rect);

 protected:
  /// The content was scrolled.
  virtual void didScroll() {}
  void layoutSubviews() override;

 private:
  CGSize contentSize_;
  CGPoint contentOffset_;
};

}  // namespace kindora
