// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/view/UILabel.h"

namespace kindora {

/// A label of as many lines as its text needs at the width that it was given, in the middle.
class QavAlertLabel final : public UILabel {
 public:
  QavAlertLabel();

 protected:
  void layoutSubviews() override;
};

}  // namespace kindora
