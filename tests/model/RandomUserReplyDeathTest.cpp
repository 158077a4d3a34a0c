// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A reply that is a JSON object, but not of the agreed shape, stops the program.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/RandomUserRequest.h"
#include "tests/model/RandomUserFixture.h"

namespace kindora {
namespace {

JsonObject& members(Json& json) { return std::get<JsonObject>(json.value); }

// The object in which the key stands in a good reply.
JsonObject& ownerOf(Json& reply, const std::string& key) {
  if (key == "results") return members(reply);
  Json& first = std::get<JsonArray>(presentMember(members(reply), "results").value).at(0);
  if (key == "user") return members(first);
  JsonObject& user = members(presentMember(members(first), "user"));
  if (key == "name" || key == "picture") return user;
  return members(presentMember(user, key == "medium" ? "picture" : "name"));
}

void removeMember(JsonObject& object, std::string_view name) {
  ASSERT_EQ(std::erase_if(object, [=](const JsonMember& member) { return member.name == name; }),
            1u);
}

struct BadValue {
  std::string key;
  std::string kind;
  std::optional<Json> value;  // absent: the key is missing
};

std::vector<BadValue> badValues() {
  const std::vector<std::pair<std::string, std::optional<Json>>> kinds{
      {"Missing", std::nullopt},      {"Null", Json{}},
      {"Boolean", boolean(true)},     {"Number", number(1)},
      {"Text", text("http://x.org")}, {"Array", array({object({})})},
      {"Object", object({})}};
  std::vector<BadValue> result;
  for (const std::string key : {"results", "user", "name", "first", "last", "picture", "medium"}) {
    const std::string proper = key == "results"                                     ? "Array"
                               : key == "user" || key == "name" || key == "picture" ? "Object"
                                                                                    : "Text";
    for (const auto& [kind, value] : kinds) {
      if (kind != proper) result.push_back({key, kind, value});
    }
  }
  return result;
}

class RandomUserReplyDeathTest : public RandomUserFixture,
                                 public ::testing::WithParamInterface<BadValue> {
 protected:
  void fetchAndAnswer(Json reply) {
    fetchRandomUser(*URL::URLWithString("http://127.0.0.1/"), receive());
    answer(0, std::move(reply));
  }
};

TEST_P(RandomUserReplyDeathTest, Stops) {
  const BadValue& bad = GetParam();
  Json reply = personReply("jane", "doe");
  JsonObject& owner = ownerOf(reply, bad.key);
  if (bad.value) {
    presentMember(owner, bad.key) = *bad.value;
  } else {
    removeMember(owner, bad.key);
  }
  EXPECT_DEATH(fetchAndAnswer(reply),
               "^fatal error: the reply lacks a proper \"" + bad.key + "\"\n");
}

INSTANTIATE_TEST_SUITE_P(Of, RandomUserReplyDeathTest, ::testing::ValuesIn(badValues()),
                         [](const auto& bad) { return bad.param.key + bad.param.kind; });

class RandomUserResultDeathTest : public RandomUserReplyDeathTest {};

TEST_F(RandomUserResultDeathTest, AnEmptyReplyStops) {
  EXPECT_DEATH(fetchAndAnswer(object({})), "fatal error: the reply lacks a proper \"results\"");
}

TEST_F(RandomUserResultDeathTest, NoResultStops) {
  EXPECT_DEATH(fetchAndAnswer(object({{"results", array({})}})),
               "fatal error: the reply's first result is no object");
}

TEST_F(RandomUserResultDeathTest, AResultThatIsNoObjectStops) {
  for (const Json& result : {Json{}, boolean(false), number(0), text("user"), array({})}) {
    EXPECT_DEATH(fetchAndAnswer(object({{"results", array({result})}})),
                 "fatal error: the reply's first result is no object");
  }
}

TEST_F(RandomUserResultDeathTest, NameIsReadBeforePicture) {
  Json reply = personReply("jane", "doe");
  ownerOf(reply, "name").clear();
  EXPECT_DEATH(fetchAndAnswer(reply), "a proper \"name\"");
}

TEST_F(RandomUserResultDeathTest, FirstNameIsReadBeforeLastName) {
  Json reply = personReply("jane", "doe");
  ownerOf(reply, "first").clear();
  EXPECT_DEATH(fetchAndAnswer(reply), "a proper \"first\"");
}

TEST_F(RandomUserResultDeathTest, LastNameIsReadBeforePicture) {
  Json reply = personReply("jane", "doe");
  removeMember(ownerOf(reply, "last"), "last");
  removeMember(ownerOf(reply, "picture"), "picture");
  EXPECT_DEATH(fetchAndAnswer(reply), "a proper \"last\"");
}

}  // namespace
}  // namespace kindora
