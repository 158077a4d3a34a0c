// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/services/CharacterSet.h"

#include "platform/TextRange.h"
#include "platform/services/Services.h"

namespace kindora {

CharacterSet CharacterSet::decimalDigitCharacterSet() { return {}; }

void CharacterSet::addCharactersInString(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) added_.insert(nextCharacter(text, at));
}

bool CharacterSet::characterIsMember(char32_t character) const {
  return services().text->isDecimalDigit(character) || added_.contains(character);
}

}  // namespace kindora
