// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/controllers/UIReusableCell.h"

namespace kindora {

/// A cell of a collection.
class UICollectionViewCell : public kindora::UIReusableCell {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cells come from the collection")
};

}  // namespace kindora
