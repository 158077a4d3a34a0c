// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/AlertAction.h"

namespace kindora {

void AlertAction::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  emit changed();
}

void AlertAction::setStyle(Style style) {
  if (style_ == style) return;
  style_ = style;
  emit changed();
}

void AlertAction::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  emit changed();
}

}  // namespace kindora
