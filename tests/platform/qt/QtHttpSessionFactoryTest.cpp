// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtHttpSessionFactory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <future>
#include <latch>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

#include "tests/platform/qt/TestServer.h"

namespace kindora {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

constexpr std::size_t kMebibyte = std::size_t{1024} * 1024;

// Sends the request and waits for its outcome.
HttpResult outcome(HttpSessionFactory& factory, const HttpRequest& request) {
  std::promise<HttpResult> promise;
  factory.makeSession()->dataTask(request,
                                  [&](HttpResult result) { promise.set_value(std::move(result)); });
  return promise.get_future().get();
}

HttpResult outcome(const URL& url) {
  QtHttpSessionFactory factory;
  return outcome(factory, {.url = url});
}

HttpResult outcomeOf(TestReply reply) {
  const TestServer server(std::move(reply));
  return outcome(server.url());
}

HttpResponse response(const HttpResult& result) {
  if (const auto* error = std::get_if<HttpError>(&result)) {
    ADD_FAILURE() << error->localizedDescription;
    return {};
  }
  return std::get<HttpResponse>(result);
}

std::string errorText(const HttpResult& result) {
  if (const auto* answered = std::get_if<HttpResponse>(&result)) {
    ADD_FAILURE() << "a response with status " << answered->statusCode;
    return {};
  }
  return std::get<HttpError>(result).localizedDescription;
}

// Requests

TEST(QtHttpSession, SendsAGetOfThePathWithoutABody) {
  const TestServer server(httpReply("200 OK", ""));
  response(outcome(server.url("/people?count=1")));
  ASSERT_EQ(server.requests().size(), 1u);
  EXPECT_THAT(server.requests()[0], StartsWith("GET /people?count=1 HTTP/1.1\r\n"));
  EXPECT_TRUE(server.requests()[0].ends_with("\r\n\r\n"));
  EXPECT_THAT(server.requests()[0], Not(HasSubstr("Content-Length")));
}

TEST(QtHttpSession, AsksForTheRootPathWhenTheAddressHasNone) {
  const TestServer server(httpReply("200 OK", ""));
  response(outcome(server.url("")));
  EXPECT_THAT(server.requests().at(0), StartsWith("GET / HTTP/1.1\r\n"));
}

TEST(QtHttpSession, SendsMethodHeadersAndBody) {
  const TestServer server(httpReply("200 OK", ""));
  QtHttpSessionFactory factory;
  response(outcome(factory, {.url = server.url(),
                             .method = "PUT",
                             .headers = {{"X-Kind", "hug"}, {"Content-Type", "text/plain"}},
                             .body = "hello"}));
  EXPECT_THAT(server.requests().at(0), StartsWith("PUT / HTTP/1.1\r\n"));
  EXPECT_THAT(server.requests()[0], HasSubstr("X-Kind: hug\r\n"));
  EXPECT_TRUE(server.requests()[0].ends_with("\r\n\r\nhello"));
}

TEST(QtHttpSession, KeepsNoCookies) {
  const TestServer server(httpReply("200 OK", "", "Set-Cookie: who=me; Path=/\r\n"));
  response(outcome(server.url()));
  response(outcome(server.url()));
  ASSERT_EQ(server.requests().size(), 2u);
  EXPECT_THAT(server.requests()[1], Not(HasSubstr("Cookie")));
}

TEST(QtHttpSession, CachesNothing) {
  const TestServer server(httpReply("200 OK", "x", "Cache-Control: max-age=3600\r\n"));
  response(outcome(server.url()));
  response(outcome(server.url()));
  EXPECT_EQ(server.requests().size(), 2u);
}

// Responses

TEST(QtHttpSession, DeliversStatusAndBody) {
  const HttpResponse answered = response(outcomeOf(httpReply("200 OK", "{\"a\": 1}")));
  EXPECT_EQ(answered.statusCode, 200);
  EXPECT_EQ(answered.body, "{\"a\": 1}");
}

TEST(QtHttpSession, BodyMayHoldAnyBytes) {
  const std::string bytes("\0\xff\r\n\r\n\0", 7);
  EXPECT_EQ(response(outcomeOf(httpReply("200 OK", bytes))).body, bytes);
}

class QtHttpSessionStatus : public ::testing::TestWithParam<int> {};

TEST_P(QtHttpSessionStatus, IsAResponseWithItsBody) {
  const HttpResponse answered =
      response(outcomeOf(httpReply(std::to_string(GetParam()) + " Word", "text")));
  EXPECT_EQ(answered.statusCode, GetParam());
  EXPECT_EQ(answered.body, "text");
}

INSTANTIATE_TEST_SUITE_P(Code, QtHttpSessionStatus,
                         ::testing::Values(201, 203, 300, 400, 401, 402, 403, 404, 405, 407, 409,
                                           410, 418, 429, 451, 500, 501, 502, 503, 504, 599),
                         ::testing::PrintToStringParamName());

TEST(QtHttpSession, AStatusWithoutABodyIsAResponse) {
  const HttpResponse answered = response(outcomeOf({"HTTP/1.1 204 No Content\r\n\r\n"}));
  EXPECT_EQ(answered.statusCode, 204);
  EXPECT_EQ(answered.body, "");
}

TEST(QtHttpSession, FollowsARedirect) {
  const TestServer server([](const std::string& request) {
    return request.starts_with("GET /new ") ? httpReply("200 OK", "there")
                                            : httpReply("302 Found", "", "Location: /new\r\n");
  });
  EXPECT_EQ(response(outcome(server.url("/old"))).body, "there");
}

// Failures

TEST(QtHttpSession, NobodyListeningIsAnError) {
  URL gone = *URL::URLWithString("http://127.0.0.1/");
  {
    const TestServer server(httpReply("200 OK", ""));
    gone = server.url();
  }
  EXPECT_EQ(errorText(outcome(gone)), "Connection refused");
}

TEST(QtHttpSession, GarbageInsteadOfAResponseIsAnError) {
  EXPECT_NE(errorText(outcomeOf({"this is no HTTP at all\r\n\r\n"})), "");
}

TEST(QtHttpSession, AConnectionClosedBeforeAnyAnswerIsAnError) {
  EXPECT_NE(errorText(outcomeOf(TestReply{""})), "");
}

TEST(QtHttpSession, AConnectionClosedInsideTheBodyIsAnError) {
  EXPECT_NE(errorText(outcomeOf({"HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf"})), "");
}

TEST(QtHttpSession, EndlessRedirectsAreAnError) {
  EXPECT_NE(errorText(outcomeOf(httpReply("302 Found", "", "Location: /\r\n"))), "");
}

TEST(QtHttpSession, ARedirectToAFileIsAnError) {
  EXPECT_NE(errorText(outcomeOf(httpReply("302 Found", "", "Location: file:///etc/hostname\r\n"))),
            "");
}

class QtHttpSessionAddress : public ::testing::TestWithParam<const char*> {};

TEST_P(QtHttpSessionAddress, IsAnError) {
  EXPECT_EQ(errorText(outcome(*URL::URLWithString(GetParam()))), "unsupported URL");
}

INSTANTIATE_TEST_SUITE_P(NotOfHttp, QtHttpSessionAddress,
                         ::testing::Values("file:///etc/hostname", "ftp://127.0.0.1/", "data:,x",
                                           "qrc:/kindora/images/leaf.svg", "people/1", "http://",
                                           "http://127.0.0.1:port/"));

// Time

TEST(QtHttpSession, NoAnswerWithinTheTimeOutIsAnError) {
  const TestServer server(TestReply{.bytes = "", .keepsOpen = true});
  QtHttpSessionFactory impatient(std::chrono::milliseconds(50));
  EXPECT_EQ(errorText(outcome(impatient, {.url = server.url()})), "The request timed out.");
}

TEST(QtHttpSession, HalfAnAnswerWithinTheTimeOutIsAnError) {
  const TestServer server(
      TestReply{.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nhalf", .keepsOpen = true});
  QtHttpSessionFactory impatient(std::chrono::milliseconds(50));
  EXPECT_EQ(errorText(outcome(impatient, {.url = server.url()})), "The request timed out.");
}

// Size

TEST(QtHttpSession, ABodyOfOneMebibyteIsAccepted) {
  const std::string body(kMebibyte, 'x');
  EXPECT_EQ(response(outcomeOf(httpReply("200 OK", body))).body, body);
}

TEST(QtHttpSession, ALargerBodyIsRefused) {
  EXPECT_EQ(errorText(outcomeOf(httpReply("200 OK", std::string(kMebibyte + 1, 'x')))),
            "The reply is too large.");
}

TEST(QtHttpSession, AnAnnouncedLargerBodyIsRefusedBeforeItComes) {
  EXPECT_EQ(errorText(outcomeOf({.bytes = "HTTP/1.1 200 OK\r\nContent-Length: 1048577\r\n\r\n",
                                 .keepsOpen = true})),
            "The reply is too large.");
}

TEST(QtHttpSession, ALargerBodyOfUnknownLengthIsRefused) {
  EXPECT_EQ(errorText(outcomeOf({.bytes = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n" +
                                          std::string(kMebibyte + 1, 'x'),
                                 .keepsOpen = true})),
            "The reply is too large.");
}

TEST(QtHttpSession, ALargerErrorPageIsRefused) {
  EXPECT_EQ(errorText(outcomeOf(httpReply("404 Not Found", std::string(kMebibyte + 1, 'x')))),
            "The reply is too large.");
}

// Threads and lifetimes

TEST(QtHttpSession, CompletionRunsOnAnotherThread) {
  const TestServer server(httpReply("200 OK", ""));
  std::promise<std::thread::id> calledOn;
  QtHttpSessionFactory().makeSession()->dataTask({.url = server.url()}, [&](const HttpResult&) {
    calledOn.set_value(std::this_thread::get_id());
  });
  EXPECT_NE(calledOn.get_future().get(), std::this_thread::get_id());
}

TEST(QtHttpSession, CompletionRunsOnceAlsoWhenTheReplyIsRefused) {
  const TestServer server(httpReply("200 OK", std::string(2 * kMebibyte, 'x')));
  std::atomic<int> calls = 0;
  std::binary_semaphore called(0);
  QtHttpSessionFactory factory;
  factory.makeSession()->dataTask({.url = server.url()}, [&](const HttpResult&) {
    ++calls;
    called.release();
  });
  called.acquire();
  // Whatever the first request still had to say has been said when a whole second one is over.
  errorText(outcome(factory, {.url = server.url()}));
  EXPECT_EQ(calls, 1);
}

TEST(QtHttpSession, CompletionMayStartAnotherRequest) {
  const TestServer server(httpReply("200 OK", ""));
  std::promise<int> status;
  QtHttpSessionFactory factory;
  const auto session = factory.makeSession();
  session->dataTask({.url = server.url()}, [&](const HttpResult&) {
    session->dataTask({.url = server.url()}, [&](const HttpResult& result) {
      status.set_value(response(result).statusCode);
    });
  });
  EXPECT_EQ(status.get_future().get(), 200);
}

TEST(QtHttpSession, CompletionIsReleasedOnceItHasRun) {
  const TestServer server(httpReply("200 OK", ""));
  std::promise<void> released;
  const auto onRelease = [&](int* held) {
    delete held;
    released.set_value();
  };
  QtHttpSessionFactory().makeSession()->dataTask(
      {.url = server.url()},
      [held = std::shared_ptr<int>(new int, onRelease)](const HttpResult&) {});
  released.get_future().wait();
}

TEST(QtHttpSession, RequestsOfManyThreadsAreAllAnswered) {
  constexpr int kThreads = 8;
  const TestServer server(httpReply("200 OK", "x"));
  std::latch answered(kThreads);
  std::atomic<int> good = 0;
  QtHttpSessionFactory factory;
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (int i = 0; i < kThreads; ++i) {
    threads.emplace_back([&] {
      factory.makeSession()->dataTask({.url = server.url()}, [&](const HttpResult& result) {
        if (response(result).body == "x") ++good;
        answered.count_down();
      });
    });
  }
  for (std::thread& thread : threads) thread.join();
  answered.wait();
  EXPECT_EQ(good, kThreads);
}

// Leaves the program with a request in flight; the completion must not run any more.
void leaveWithARequestInFlight(bool endApplicationFirst) {
  static std::promise<void> arrived;
  // Static, so that the connection stays open until the network thread has ended.
  static const TestServer server([](const std::string&) {
    arrived.set_value();
    return TestReply{.bytes = "", .keepsOpen = true};
  });
  QtHttpSessionFactory().makeSession()->dataTask({.url = server.url()},
                                                 [](const HttpResult&) { std::_Exit(1); });
  arrived.get_future().wait();
  if (endApplicationFirst) delete QCoreApplication::instance();
  std::exit(0);
}

TEST(QtHttpSessionDeathTest, ProgramEndsQuietlyWithARequestInFlight) {
  EXPECT_EXIT(leaveWithARequestInFlight(true), ::testing::ExitedWithCode(0), "^$");
}

TEST(QtHttpSessionDeathTest, ExitIsQuietWithARequestInFlight) {
  EXPECT_EXIT(leaveWithARequestInFlight(false), ::testing::ExitedWithCode(0), "^$");
}

void requestAfterTheApplication() {
  static const TestServer server(httpReply("200 OK", ""));
  outcome(server.url());
  delete QCoreApplication::instance();
  QtHttpSessionFactory().makeSession()->dataTask({.url = server.url()},
                                                 [](const HttpResult&) { std::_Exit(1); });
  std::exit(0);
}

TEST(QtHttpSessionDeathTest, ARequestAfterTheApplicationIsDropped) {
  EXPECT_EXIT(requestAfterTheApplication(), ::testing::ExitedWithCode(0), "^$");
}

}  // namespace
}  // namespace kindora
