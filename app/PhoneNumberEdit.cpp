// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/PhoneNumberEdit.h"

namespace kindora {
namespace {

std::size_t phoneCharactersIn(std::string_view text, const CharacterSet& phoneChars) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (phoneChars.characterIsMember(nextCharacter(text, at))) ++count;
  }
  return count;
}

// In bytes. The comparison follows each character, also for a count of 0.
std::size_t placeBehind(std::size_t count, std::string_view phone, const CharacterSet& phoneChars) {
  std::size_t seen = 0;
  for (std::size_t at = 0; at < phone.size();) {
    if (phoneChars.characterIsMember(nextCharacter(phone, at))) ++seen;
    if (seen == count) return at;
  }
  return phone.size();
}

}  // namespace

PhoneNumberEdit editPhoneNumber(LuPhoneFormat& phoneFormat, const CharacterSet& phoneChars,
                                std::string_view text, NSRange selection,
                                std::string_view replacement) {
  NSRange range = selection;
  if (selection.length == 0 && replacement.empty() && selection.location > 0) {
    range = {selection.location - 1, 1};
  }
  PhoneNumberEdit edit;
  edit.typed = stringByReplacingCharactersInRange(text, range, replacement);
  edit.phone = phoneFormat.format(edit.typed);
  edit.valid = phoneFormat.isPhoneNumberValid(edit.phone);
  const std::size_t behind = range.location + utf16Length(replacement);
  const std::string_view before =
      std::string_view(edit.typed).substr(0, utf8Offset(edit.typed, behind));
  const std::size_t place =
      placeBehind(phoneCharactersIn(before, phoneChars), edit.phone, phoneChars);
  edit.caret = utf16Length(std::string_view(edit.phone).substr(0, place));
  return edit;
}

}  // namespace kindora
