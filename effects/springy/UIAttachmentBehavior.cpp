// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/springy/UIAttachmentBehavior.h"

#include <cmath>
#include <utility>

namespace kindora {

UIAttachmentBehavior::UIAttachmentBehavior(UICollectionViewLayoutAttributesRef item, CGPoint anchor)
    : items_{std::move(item)},
      anchorPoint_(anchor),
      length_(std::hypot(items_.front()->center().x - anchor.x,
                         items_.front()->center().y - anchor.y)) {}

UIAttachmentBehaviorRef UIAttachmentBehavior::initWithItem(UICollectionViewLayoutAttributesRef item,
                                                           CGPoint attachedToAnchor) {
  return UIAttachmentBehaviorRef(new UIAttachmentBehavior(std::move(item), attachedToAnchor));
}

}  // namespace kindora
