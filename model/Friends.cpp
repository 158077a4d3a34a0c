// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/Friends.h"

#include <algorithm>

#include "model/ChallengeData.h"
#include "platform/services/Services.h"

namespace kindora {

Friends::Friends() {
  const ChallengeData& store = ChallengeData::sharedInstance();
  for (const ChallengeData::List* list : {&store.hiddenChallenges, &store.completedChallenges,
                                          &store.inProgressChallenges, &store.newChallenges}) {
    for (const ChallengeRef& challenge : *list) {
      if (challenge->sender) friendUsers.push_back(challenge->sender);
    }
  }
  const TextService& text = *services().text;
  std::ranges::sort(friendUsers, [&](const UserRef& a, const UserRef& b) {
    return text.compare(a->name, b->name) < 0;
  });
}

Friends& Friends::sharedInstance() {
  // Never destroyed, like the store whose pictures it shares.
  static Friends& instance = *new Friends;
  return instance;
}

void Friends::addFriend(const UserRef& user) { friendUsers.push_back(user); }

}  // namespace kindora
