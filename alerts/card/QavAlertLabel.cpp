// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertLabel.h"

namespace kindora {

QavAlertLabel::QavAlertLabel() {
  setTextAlignment(NSTextAlignment::center);
  setNumberOfLines(0);
}

void QavAlertLabel::layoutSubviews() {
  setPreferredMaxLayoutWidth(frame().size.width);
  UILabel::layoutSubviews();
}

}  // namespace kindora
