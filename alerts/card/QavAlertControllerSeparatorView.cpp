// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerSeparatorView.h"

#include "alerts/card/QavAlertControllerCollectionViewLayoutAttributes.h"

namespace kindora {

void QavAlertControllerSeparatorView::applyLayoutAttributes(
    const UICollectionViewLayoutAttributes& attributes) {
  QavCollectionReusableView::applyLayoutAttributes(attributes);
  const auto* coloured =
      dynamic_cast<const QavAlertControllerCollectionViewLayoutAttributes*>(&attributes);
  if (coloured != nullptr) setBackgroundColor(coloured->backgroundColor());
}

}  // namespace kindora
