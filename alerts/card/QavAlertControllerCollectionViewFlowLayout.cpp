// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerCollectionViewFlowLayout.h"

#include <utility>

#include "alerts/card/QavAlertControllerCollectionViewLayoutAttributes.h"

namespace kindora {

QavAlertControllerCollectionViewFlowLayout::QavAlertControllerCollectionViewFlowLayout(
    std::shared_ptr<const QavAlertControllerVisualStyle> style)
    : visualStyle_(std::move(style)) {
  setMinimumInteritemSpacing(0);
  setMinimumLineSpacing(0);
}

void QavAlertControllerCollectionViewFlowLayout::setVisualStyle(
    std::shared_ptr<const QavAlertControllerVisualStyle> style) {
  visualStyle_ = std::move(style);
  invalidateLayout();
}

UICollectionViewLayoutAttributesRef QavAlertControllerCollectionViewFlowLayout::makeAttributes(
    IndexPath path, const CGRect& frame) const {
  return std::make_shared<QavAlertControllerCollectionViewLayoutAttributes>(path, frame);
}

std::vector<UICollectionViewLayoutAttributesRef>
QavAlertControllerCollectionViewFlowLayout::layoutAttributesForElementsInRect(
    const CGRect& rect) const {
  auto elements = UICollectionViewFlowLayout::layoutAttributesForElementsInRect(rect);
  const auto buttons = elements;
  const bool sideBySide = scrollDirection() == UICollectionViewScrollDirection::horizontal;
  const double thickness = visualStyle_->actionViewSeparatorThickness();
  for (const auto& button : buttons) {
    const CGSize size = button->frame().size;
    elements.push_back(makeSeparator(*button, kQavAlertControllerDecorationKindHorizontalSeparator,
                                     {size.width, thickness}));
    if (!sideBySide || button->indexPath().row == 0) continue;
    elements.push_back(makeSeparator(*button, kQavAlertControllerDecorationKindVerticalSeparator,
                                     {thickness, size.height}));
  }
  return elements;
}

UICollectionViewLayoutAttributesRef QavAlertControllerCollectionViewFlowLayout::makeSeparator(
    const UICollectionViewLayoutAttributes& button, const char* kind, CGSize size) const {
  auto separator = std::make_shared<QavAlertControllerCollectionViewLayoutAttributes>(
      button.indexPath(), CGRect{button.frame().origin, size}, kind);
  separator->setZIndex(button.zIndex() + 1);
  separator->setBackgroundColor(visualStyle_->actionViewSeparatorColor());
  return separator;
}

bool QavAlertControllerCollectionViewFlowLayout::shouldInvalidateLayoutForBoundsChange(
    const CGRect& newBounds) {
  return collectionView() != nullptr && newBounds.size != collectionView()->bounds().size;
}

}  // namespace kindora
