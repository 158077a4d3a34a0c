// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeHttp.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>
#include <variant>

namespace kindora {
namespace {

const URL kUrl = *URL::URLWithString("http://example.org/");

TEST(FakeHttp, AnswersOnAnotherThreadWhenTold) {
  FakeHttp http;
  int status = 0;
  std::thread::id calledOn;
  http.makeSession()->dataTask({.url = kUrl}, [&](const HttpResult& result) {
    status = std::get<HttpResponse>(result).statusCode;
    calledOn = std::this_thread::get_id();
  });
  EXPECT_EQ(status, 0);
  http.answer(0, HttpResponse{418, ""});
  EXPECT_EQ(status, 418);
  EXPECT_NE(calledOn, std::this_thread::get_id());
}

TEST(FakeHttp, CountsSessionsAndKeepsRequestsInOrder) {
  FakeHttp http;
  const auto session = http.makeSession();
  static_cast<void>(http.makeSession());
  session->dataTask({.url = kUrl, .method = "GET"}, {});
  session->dataTask({.url = kUrl, .method = "PUT"}, {});
  EXPECT_EQ(http.sessionCount(), 2u);
  ASSERT_EQ(http.requests().size(), 2u);
  EXPECT_EQ(http.requests()[1].method, "PUT");
}

TEST(FakeHttpDeathTest, AnsweringTwiceStops) {
  FakeHttp http;
  http.makeSession()->dataTask({.url = kUrl}, [](const HttpResult&) {});
  http.answer(0, HttpResponse{});
  EXPECT_DEATH(http.answer(0, HttpResponse{}), "fatal error: no request waits for this answer");
}

TEST(FakeHttpDeathTest, AnsweringARequestThatWasNotMadeStops) {
  FakeHttp http;
  EXPECT_DEATH(http.answer(0, HttpResponse{}), "fatal error: no request waits for this answer");
}

}  // namespace
}  // namespace kindora
