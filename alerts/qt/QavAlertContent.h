// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "alerts/card/QavAlertAction.h"
#include "alerts/card/QavAlertActionLayout.h"
#include "alerts/helpers/QavIntrinsicallySizedView.h"
#include "platform/NSAttributedString.h"
#include "toolkit/view/UITextField.h"

namespace kindora {

/// What an alert says and holds, however it is drawn.
struct QavAlertContent {
  std::optional<std::string> title;
  std::optional<std::string> message;
  /// Where there is one, it is shown in place of the plain one.
  std::optional<NSAttributedString> attributedTitle;
  std::optional<NSAttributedString> attributedMessage;
  std::vector<QavAlertActionRef> actions;
  std::vector<std::shared_ptr<UITextField>> textFields;
  QavAlertActionLayout actionLayout = QavAlertActionLayout::automatic;
  /// Holds the caller's own views.
  std::shared_ptr<QavIntrinsicallySizedView> view;
};

}  // namespace kindora
