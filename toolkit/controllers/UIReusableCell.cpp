// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIReusableCell.h"

#include <QQmlEngine>

namespace kindora {

UIReusableCell::UIReusableCell() { QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership); }

UIViewRef UIReusableCell::outlet(std::string_view name) { return contentView_->viewWithName(name); }

void UIReusableCell::setHighlighted(bool highlighted, bool animated) {
  if (isHighlighted() == highlighted) return;
  ReusableCell::setHighlighted(highlighted, animated);
  emit lookChanged();
}

}  // namespace kindora
