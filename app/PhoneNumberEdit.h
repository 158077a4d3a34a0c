// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "phoneformat/LuPhoneFormat.h"
#include "platform/TextRange.h"
#include "platform/services/CharacterSet.h"

namespace kindora {

/// What becomes of a phone number in a text field when the user edits it.
struct PhoneNumberEdit {
  std::string typed;      ///< the text as the edit alone would leave it
  std::string phone;      ///< that, laid out
  bool valid = false;     ///< whether phone is a whole phone number
  std::size_t caret = 0;  ///< where the caret belongs in phone, in UTF-16 units
  /// Whether layout adds nothing, so that the field may carry out the edit itself.
  [[nodiscard]] bool isPlain() const { return phone == typed; }
};

/// The edit of a text in which the selection is replaced; with a caret and no replacement, the
/// character before the caret is deleted. The caret comes to stand behind the same phone character
/// as before, counted from the beginning; when none stands before it, behind the first character if
/// that is no phone character, else at the end.
[[nodiscard]] PhoneNumberEdit editPhoneNumber(LuPhoneFormat& phoneFormat,
                                              const CharacterSet& phoneChars, std::string_view text,
                                              NSRange selection, std::string_view replacement);

}  // namespace kindora
