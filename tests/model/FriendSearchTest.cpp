// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/FriendSearch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/fakes/FakeServices.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FriendSearchTest : public ::testing::Test {
 protected:
  using Names = std::vector<std::string>;

  static std::vector<UserRef> users(const Names& names) {
    std::vector<UserRef> result;
    for (const std::string& name : names) {
      result.push_back(std::make_shared<User>(name, nullptr, std::nullopt));
    }
    return result;
  }
  [[nodiscard]] static Names found(const Names& names, std::string_view text) {
    Names result;
    for (const UserRef& user : usersWithNameContaining(users(names), text)) {
      result.push_back(user->name);
    }
    return result;
  }

  const FakeServices fakes = installFakeServices();
};

TEST_F(FriendSearchTest, AnEmptyTextIsNeverFound) {
  EXPECT_THAT(found({"Diana", ""}, ""), IsEmpty());
}

TEST_F(FriendSearchTest, FindsThePartOfANameWhateverTheCase) {
  EXPECT_THAT(found({"Diana", "Joe"}, "AN"), ElementsAre("Diana"));
  EXPECT_THAT(found({"DIANA", "Joe"}, "an"), ElementsAre("DIANA"));
}

TEST_F(FriendSearchTest, FindsTheBeginningTheMiddleAndTheEnd) {
  for (const char* text : {"d", "dia", "ian", "na", "diana"}) {
    EXPECT_THAT(found({"Diana"}, text), ElementsAre("Diana")) << text;
  }
}

TEST_F(FriendSearchTest, ATextLongerThanTheNameIsNotInIt) {
  EXPECT_THAT(found({"Diana", "Di", ""}, "diana!"), IsEmpty());
}

TEST_F(FriendSearchTest, FindsWhatBeginsAgainAfterAFalseStart) {
  EXPECT_THAT(found({"Annanna Annabel"}, "annab"), ElementsAre("Annanna Annabel"));
  EXPECT_THAT(found({"aab"}, "ab"), ElementsAre("aab"));
}

TEST_F(FriendSearchTest, BlanksCount) {
  const Names names{"Joe in the Red Shirt", "Theodora", "Breathe", " the end"};
  EXPECT_THAT(found(names, " the "), ElementsAre("Joe in the Red Shirt", " the end"));
  EXPECT_THAT(found(names, " "), ElementsAre("Joe in the Red Shirt", " the end"));
}

TEST_F(FriendSearchTest, NothingIsTrimmed) {
  EXPECT_THAT(found({"Diana"}, "diana "), IsEmpty());
  EXPECT_THAT(found({"Diana"}, " diana"), IsEmpty());
}

TEST_F(FriendSearchTest, AccentsCount) {
  const Names names{"Rene", "Ren\u00e9"};
  EXPECT_THAT(found(names, "rene"), ElementsAre("Rene"));
  EXPECT_THAT(found(names, "ren\u00e9"), ElementsAre("Ren\u00e9"));
}

TEST_F(FriendSearchTest, CaseDoesNotCountBeyondAscii) {
  EXPECT_THAT(found({"\u00c9mile"}, "\u00e9m"), ElementsAre("\u00c9mile"));
  EXPECT_THAT(found({"\u00e9mile"}, "\u00c9M"), ElementsAre("\u00e9mile"));
}

TEST_F(FriendSearchTest, ALetterBeyondAsciiIsInNoAsciiName) {
  EXPECT_THAT(found({"Emile"}, "\u00e9"), IsEmpty());
}

TEST_F(FriendSearchTest, AnAsciiTextIsFoundInANameBeyondAscii) {
  EXPECT_THAT(found({"\u00c9mile Zola"}, "ZOLA"), ElementsAre("\u00c9mile Zola"));
}

TEST_F(FriendSearchTest, WhatLooksLikeAPatternIsPlainText) {
  EXPECT_THAT(found({"Diana", "D.*a"}, ".*"), ElementsAre("D.*a"));
  EXPECT_THAT(found({"Diana", "%"}, "%"), ElementsAre("%"));
}

TEST_F(FriendSearchTest, KeepsTheOrderOfTheList) {
  EXPECT_THAT(found({"Zan", "Anna", "an", "Diana"}, "an"),
              ElementsAre("Zan", "Anna", "an", "Diana"));
}

TEST_F(FriendSearchTest, SomebodyListedTwiceIsFoundTwice) {
  const UserRef diana = users({"Diana"}).front();
  EXPECT_THAT(usersWithNameContaining({diana, diana}, "an"), ElementsAre(diana, diana));
}

TEST_F(FriendSearchTest, FindsTheUsersThemselves) {
  const auto all = users({"Diana", "Joe"});
  EXPECT_THAT(usersWithNameContaining(all, "joe"), ElementsAre(all[1]));
}

TEST_F(FriendSearchTest, NobodyIsFoundAmongNobody) { EXPECT_THAT(found({}, "a"), IsEmpty()); }

}  // namespace
}  // namespace kindora
