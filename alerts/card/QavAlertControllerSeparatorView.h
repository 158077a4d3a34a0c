// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "alerts/card/QavCollectionReusableView.h"

namespace kindora {

/// A line between buttons, in the colour that the layout tells.
class QavAlertControllerSeparatorView final : public QavCollectionReusableView {
 public:
  QavAlertControllerSeparatorView() { setUserInteractionEnabled(false); }
  void applyLayoutAttributes(const UICollectionViewLayoutAttributes& attributes) override;
};

}  // namespace kindora
