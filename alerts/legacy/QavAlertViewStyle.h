// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Which text fields an alert has.
enum class QavAlertViewStyle {
  standard = 0,               ///< none
  secureTextInput = 1,        ///< one whose text is hidden
  plainTextInput = 2,         ///< one
  loginAndPasswordInput = 3,  ///< one for the name and one, hidden, for the password
};

}  // namespace kindora
