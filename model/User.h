// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/UIImage.h"
#include "platform/URL.h"

namespace kindora {

class User;
using UserRef = std::shared_ptr<User>;

/// A person whom the user knows. Shared by reference and never copied.
class User final {
 public:
  /// Receives one fetched user.
  using Completion = std::function<void(UserRef)>;

  /// A user named "User" with no picture and no address.
  User();
  User(std::string userName, UIImageRef userPicture, std::optional<URL> userPictureURL);
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  /// Delivers one sample user: the first of those fetched ahead, on the main queue; else one from
  /// the web service, on the HTTP session's callback queue. Returns at once. The completion is
  /// never called when the request fails or its reply is no JSON object; a JSON object of another
  /// shape stops the program, as does a prefetched user that was taken by somebody else meanwhile.
  static void getRandomUser(Completion completion);
  /// Starts `count` requests whose users are kept for getRandomUser, and returns before they
  /// arrive. With a count of 0 or less it starts none and never returns.
  static void generateRandomUsersWithCount(int count);

  std::string name;
  UIImageRef picture;
  std::optional<URL> pictureURL;
};

}  // namespace kindora
