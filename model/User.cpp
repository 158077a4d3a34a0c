// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/User.h"

#include <algorithm>
#include <semaphore>
#include <utility>

#include "model/PrefetchQueue.h"
#include "model/RandomUserAddress.h"
#include "model/RandomUserRequest.h"
#include "platform/FatalError.h"
#include "platform/services/Services.h"

namespace kindora {

User::User() : User("User", nullptr, std::nullopt) {}

User::User(std::string userName, UIImageRef userPicture, std::optional<URL> userPictureURL)
    : name(std::move(userName)),
      picture(std::move(userPicture)),
      pictureURL(std::move(userPictureURL)) {}

void User::getRandomUser(Completion completion) {
  if (PrefetchQueue::sharedInstance().size() == 0) {
    fetchRandomUser(randomUserAddress(), std::move(completion));
    return;
  }
  services().mainQueue->async([completion = std::move(completion)] {
    UserRef user = PrefetchQueue::sharedInstance().takeFirst();
    if (!user) fatalError("no prefetched user is left");
    completion(std::move(user));
  });
}

void User::generateRandomUsersWithCount(int count) {
  // Shared with the completions, the last of which outlives this call.
  const auto arrived = std::make_shared<std::counting_semaphore<>>(std::max(count, 0));
  for (int i = 0; i < count; ++i) {
    getRandomUser([arrived](UserRef user) {
      PrefetchQueue::sharedInstance().append(std::move(user));
      arrived->release();
    });
  }
  // The semaphore starts at the count, so this does not wait for any user to arrive.
  arrived->acquire();
}

}  // namespace kindora
