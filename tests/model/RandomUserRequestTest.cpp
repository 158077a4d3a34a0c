// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/RandomUserRequest.h"

#include <gtest/gtest.h>

#include <thread>

#include "tests/model/RandomUserFixture.h"

namespace kindora {
namespace {

class RandomUserRequest : public RandomUserFixture {
 protected:
  void fetch() { fetchRandomUser(address, receive()); }

  const URL address = *URL::URLWithString("http://127.0.0.1:1234/");
};

TEST_F(RandomUserRequest, SendsAPlainGetInASessionOfItsOwn) {
  fetch();
  EXPECT_EQ(fakes.http->sessionCount(), 1u);
  ASSERT_EQ(fakes.http->requests().size(), 1u);
  const HttpRequest request = fakes.http->requests()[0];
  EXPECT_EQ(request.url, address);
  EXPECT_EQ(request.method, "GET");
  EXPECT_TRUE(request.headers.empty());
  EXPECT_TRUE(request.body.empty());
}

TEST_F(RandomUserRequest, ReturnsBeforeTheReplyComes) {
  fetch();
  EXPECT_TRUE(received.empty());
}

TEST_F(RandomUserRequest, DeliversTheUserOfTheReply) {
  fetch();
  answer(0, personReply("jane", "doe", "http://example.org/jane.jpg"));
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0]->name, "Jane Doe");
  EXPECT_EQ(received[0]->pictureURL, URL::URLWithString("http://example.org/jane.jpg"));
}

TEST_F(RandomUserRequest, DoesNotFetchThePicture) {
  fetch();
  answer(0, personReply("jane", "doe"));
  EXPECT_EQ(received.at(0)->picture, nullptr);
  EXPECT_EQ(fakes.http->requests().size(), 1u);
}

TEST_F(RandomUserRequest, CallsBackOnTheThreadOfTheSession) {
  std::thread::id calledOn;
  fetchRandomUser(address, [&](const UserRef&) { calledOn = std::this_thread::get_id(); });
  answer(0, personReply("jane", "doe"));
  EXPECT_NE(calledOn, std::thread::id());
  EXPECT_NE(calledOn, std::this_thread::get_id());
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 0u);
}

TEST_F(RandomUserRequest, CapitalisesEveryWordOfBothNames) {
  fetch();
  answer(0, personReply("mARIA", "de la cruz"));
  EXPECT_EQ(received.at(0)->name, "Maria De La Cruz");
}

TEST_F(RandomUserRequest, EmptyFirstNameLeavesTheBlankInFront) {
  fetch();
  answer(0, personReply("", "doe"));
  EXPECT_EQ(received.at(0)->name, " Doe");
}

TEST_F(RandomUserRequest, EmptyLastNameLeavesTheBlankBehind) {
  fetch();
  answer(0, personReply("jane", ""));
  EXPECT_EQ(received.at(0)->name, "Jane ");
}

TEST_F(RandomUserRequest, TextThatIsNoAddressLeavesThePictureAddressAbsent) {
  fetch();
  answer(0, personReply("jane", "doe", "no address"));
  ASSERT_EQ(received.size(), 1u);
  EXPECT_EQ(received[0]->pictureURL, std::nullopt);
}

TEST_F(RandomUserRequest, StatusCodeDoesNotMatter) {
  fetch();
  answer(0, personReply("jane", "doe"), 404);
  EXPECT_EQ(received.size(), 1u);
}

TEST_F(RandomUserRequest, OnlyTheFirstResultCounts) {
  Json reply = personReply("jane", "doe");
  auto& results =
      std::get<JsonArray>(presentMember(std::get<JsonObject>(reply.value), "results").value);
  results.push_back(text("no person"));
  fetch();
  answer(0, reply);
  EXPECT_EQ(received.size(), 1u);
}

TEST_F(RandomUserRequest, FailedRequestIsQuiet) {
  fetch();
  fakes.http->answer(0, HttpError{"no connection"});
  EXPECT_TRUE(received.empty());
  EXPECT_TRUE(fakes.console->lines().empty());
}

TEST_F(RandomUserRequest, BodyThatIsNoJsonIsQuiet) {
  fetch();
  fakes.http->answer(0, HttpResponse{200, "<html>"});
  EXPECT_TRUE(received.empty());
  EXPECT_TRUE(fakes.console->lines().empty());
}

TEST_F(RandomUserRequest, TopLevelArrayIsQuiet) {
  fetch();
  answer(0, array({personReply("jane", "doe")}));
  EXPECT_TRUE(received.empty());
}

TEST_F(RandomUserRequest, TopLevelNumberIsQuiet) {
  fetch();
  answer(0, number(3));
  EXPECT_TRUE(received.empty());
}

TEST_F(RandomUserRequest, TopLevelTextIsQuiet) {
  fetch();
  answer(0, text("results"));
  EXPECT_TRUE(received.empty());
}

TEST_F(RandomUserRequest, TopLevelNullIsQuiet) {
  fetch();
  answer(0, Json{});
  EXPECT_TRUE(received.empty());
}

TEST_F(RandomUserRequest, TwoRequestsMayBeAnsweredInAnyOrder) {
  fetch();
  fetch();
  EXPECT_EQ(fakes.http->sessionCount(), 2u);
  EXPECT_EQ(fakes.http->requests().size(), 2u);
  answer(1, personReply("second", "x"));
  answer(0, personReply("first", "x"));
  ASSERT_EQ(received.size(), 2u);
  EXPECT_EQ(received[0]->name, "Second X");
  EXPECT_EQ(received[1]->name, "First X");
  EXPECT_NE(received[0], received[1]);
}

}  // namespace
}  // namespace kindora
