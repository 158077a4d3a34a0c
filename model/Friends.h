// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "model/User.h"

namespace kindora {

/// The people to whom the user can pass a challenge on. Main queue only.
class Friends final {
 public:
  /// The senders of all challenges that the shared store holds now, by name; somebody who sent two
  /// is listed twice.
  Friends();
  Friends(const Friends&) = delete;
  Friends& operator=(const Friends&) = delete;

  /// The one list of the process, made at the first call and not remade when the store changes.
  [[nodiscard]] static Friends& sharedInstance();

  /// Puts the user at the end, whoever is listed already; the list is not sorted again.
  void addFriend(const UserRef& user);

  std::vector<UserRef> friendUsers;
};

}  // namespace kindora
