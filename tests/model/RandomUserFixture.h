// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/PrefetchQueue.h"
#include "model/User.h"
#include "platform/fakes/FakeServices.h"

namespace kindora {

inline Json text(std::string value) { return {std::move(value)}; }
inline Json number(double value) { return {value}; }
inline Json boolean(bool value) { return {value}; }
inline Json array(JsonArray elements) { return {std::move(elements)}; }
inline Json object(JsonObject members) { return {std::move(members)}; }

/// For changes; the object must have a member of that name.
inline Json& presentMember(JsonObject& object, std::string_view name) {
  return std::ranges::find(object, name, &JsonMember::name)->value;
}

/// A reply of the shape that the service gives.
inline Json personReply(const std::string& first, const std::string& last,
                        const std::string& medium = "http://example.org/p.jpg") {
  return object(
      {{"results",
        array({object(
            {{"user", object({{"name", object({{"first", text(first)}, {"last", text(last)}})},
                              {"picture", object({{"medium", text(medium)}})}})}})})}});
}

class RandomUserFixture : public ::testing::Test {
 protected:
  RandomUserFixture() {
    // Empty also when another test has filled it before.
    while (PrefetchQueue::sharedInstance().takeFirst()) {
    }
  }

  /// Answers the request with a body that reads as the value.
  void answer(std::size_t request, Json value, int status = 200) {
    fakes.json->setValue("body", std::move(value));
    fakes.http->answer(request, HttpResponse{status, "body"});
  }

  static UserRef named(const std::string& name) {
    return std::make_shared<User>(name, nullptr, std::nullopt);
  }

  FakeServices fakes = installFakeServices();
  /// The users that a completion made by receive() has got.
  std::vector<UserRef> received;
  User::Completion receive() {
    return [this](UserRef user) { received.push_back(std::move(user)); };
  }
};

}  // namespace kindora
