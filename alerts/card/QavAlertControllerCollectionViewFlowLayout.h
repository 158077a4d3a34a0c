// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "toolkit/collection/UICollectionViewFlowLayout.h"

namespace kindora {

inline constexpr const char* kQavAlertControllerDecorationKindHorizontalSeparator =
    "QavAlertControllerDecorationKindHorizontalSeparator";
inline constexpr const char* kQavAlertControllerDecorationKindVerticalSeparator =
    "QavAlertControllerDecorationKindVerticalSeparator";

/// Places an alert's buttons without gaps, with a line above each and, side by side, one on the
/// left of each but the first. The lines lie above the buttons.
class QavAlertControllerCollectionViewFlowLayout final : public UICollectionViewFlowLayout {
 public:
  explicit QavAlertControllerCollectionViewFlowLayout(
      std::shared_ptr<const QavAlertControllerVisualStyle> style);

  [[nodiscard]] const std::shared_ptr<const QavAlertControllerVisualStyle>& visualStyle() const {
    return visualStyle_;
  }
  void setVisualStyle(std::shared_ptr<const QavAlertControllerVisualStyle> style);

  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> layoutAttributesForElementsInRect(
      const CGRect& rect) const override;
  /// True when the size changes: buttons follow it in both directions.
  [[nodiscard]] bool shouldInvalidateLayoutForBoundsChange(const CGRect& newBounds) override;

 protected:
  [[nodiscard]] UICollectionViewLayoutAttributesRef makeAttributes(
      IndexPath path, const CGRect& frame) const override;

 private:
  [[nodiscard]] UICollectionViewLayoutAttributesRef makeSeparator(
      const UICollectionViewLayoutAttributes& button, const char* kind, CGSize size) const;

  std::shared_ptr<const QavAlertControllerVisualStyle> visualStyle_;
};

}  // namespace kindora
