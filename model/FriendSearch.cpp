// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/FriendSearch.h"

#include <algorithm>
#include <string>

#include "platform/services/Services.h"

namespace kindora {
namespace {

constexpr char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// ASCII folds letter by letter, so most names need neither a copy nor the text service.
bool asciiNameContains(std::string_view name, std::string_view folded) {
  return std::search(name.begin(), name.end(), folded.begin(), folded.end(),
                     [](char own, char sought) { return lowered(own) == sought; }) != name.end();
}

}  // namespace

std::vector<UserRef> usersWithNameContaining(const std::vector<UserRef>& users,
                                             std::string_view text) {
  std::vector<UserRef> found;
  if (text.empty()) return found;
  const TextService& unicode = *services().text;
  const std::string folded = unicode.caseFolded(text);
  std::ranges::copy_if(users, std::back_inserter(found), [&](const UserRef& user) {
    return isAscii(user->name) ? asciiNameContains(user->name, folded)
                               : unicode.caseFolded(user->name).find(folded) != std::string::npos;
  });
  return found;
}

}  // namespace kindora
