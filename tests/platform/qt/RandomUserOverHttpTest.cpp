// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The random-user requests on the phone's services and a real server.
#include <gtest/gtest.h>

#include <latch>
#include <memory>
#include <semaphore>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "model/MyRequestController.h"
#include "model/PrefetchQueue.h"
#include "model/RandomUserRequest.h"
#include "platform/fakes/RecordingConsole.h"
#include "platform/qt/QtServices.h"
#include "tests/platform/qt/TestServer.h"

namespace kindora {
namespace {

// The phone's sessions, with all requests sent to one server, and word when a completion has
// returned.
class RedirectingHttp final : public HttpSessionFactory {
 public:
  RedirectingHttp(std::shared_ptr<HttpSessionFactory> real, URL server)
      : real_(std::move(real)), server_(std::move(server)) {}

  [[nodiscard]] std::shared_ptr<HttpSession> makeSession() override {
    return std::make_shared<Session>(real_->makeSession(), server_, finished_);
  }
  void waitForOneReply() { finished_->acquire(); }

 private:
  using Finished = std::shared_ptr<std::counting_semaphore<>>;

  class Session final : public HttpSession {
   public:
    Session(std::shared_ptr<HttpSession> real, URL server, Finished finished)
        : real_(std::move(real)), server_(std::move(server)), finished_(std::move(finished)) {}

    void dataTask(const HttpRequest& request, Completion completion) override {
      HttpRequest redirected = request;
      redirected.url = server_;
      real_->dataTask(redirected, [completion = std::move(completion),
                                   finished = finished_](HttpResult result) {
        completion(std::move(result));
        finished->release();
      });
    }

   private:
    std::shared_ptr<HttpSession> real_;
    URL server_;
    Finished finished_;
  };

  std::shared_ptr<HttpSessionFactory> real_;
  URL server_;
  Finished finished_ = std::make_shared<std::counting_semaphore<>>(0);
};

class RandomUserOverHttp : public ::testing::Test {
 protected:
  void serve(TestReply reply) {
    serve([reply = std::move(reply)](const std::string&) { return reply; });
  }
  void serve(TestServer::Handler handler) {
    server = std::make_unique<TestServer>(std::move(handler));
    Services services = makeQtServices();
    http = std::make_shared<RedirectingHttp>(services.http, server->url());
    services.http = http;
    services.console = console;
    installServices(std::move(services));
  }

  // The names of the users that come of one request.
  std::vector<std::string> fetchedNames(TestReply reply) {
    serve(std::move(reply));
    std::vector<std::string> names;
    User::getRandomUser([&](const UserRef& user) { names.push_back(user->name); });
    http->waitForOneReply();
    return names;
  }

  static std::string body(const std::string& first, const std::string& last) {
    return R"({"results": [{"user": {"gender": "x", "name": {"title": "ms", "first": ")" + first +
           R"(", "last": ")" + last +
           R"("}, "picture": {"medium": "http:\/\/example.org\/medium\/1.jpg"}}}], "version": 1})";
  }

  std::unique_ptr<TestServer> server;
  std::shared_ptr<RedirectingHttp> http;
  std::shared_ptr<RecordingConsole> console = std::make_shared<RecordingConsole>();
  using Names = std::vector<std::string>;
};

TEST_F(RandomUserOverHttp, DeliversThePersonOfTheReplyOnAnotherThread) {
  serve(httpReply("200 OK", body("jane", "doe")));
  UserRef user;
  std::thread::id calledOn;
  User::getRandomUser([&](UserRef fetched) {
    user = std::move(fetched);
    calledOn = std::this_thread::get_id();
  });
  http->waitForOneReply();
  ASSERT_NE(user, nullptr);
  EXPECT_EQ(user->name, "Jane Doe");
  EXPECT_EQ(user->pictureURL, URL::URLWithString("http://example.org/medium/1.jpg"));
  EXPECT_EQ(user->picture, nullptr);
  EXPECT_NE(calledOn, std::this_thread::get_id());
  ASSERT_EQ(server->requests().size(), 1u);
  EXPECT_TRUE(server->requests()[0].starts_with("GET / HTTP/1.1\r\n"));
}

TEST_F(RandomUserOverHttp, CapitalisesTheNamesByUnicode) {
  EXPECT_EQ(fetchedNames(httpReply("200 OK", body("mARIA", "de la cruz"))),
            Names{"Maria De La Cruz"});
  EXPECT_EQ(fetchedNames(httpReply("200 OK", body("\\u00e9lodie", "ØRJAN"))),
            Names{"Élodie Ørjan"});
}

TEST_F(RandomUserOverHttp, StatusCodeDoesNotMatter) {
  EXPECT_EQ(fetchedNames(httpReply("404 Not Found", body("jane", "doe"))), Names{"Jane Doe"});
}

TEST_F(RandomUserOverHttp, RepliesThatAreNoJsonObjectAreQuiet) {
  for (const char* reply : {"", "<html>", "{\"results\": [", "[]", "3", "\"results\"", "null"}) {
    EXPECT_EQ(fetchedNames(httpReply("200 OK", reply)), Names{}) << reply;
  }
  EXPECT_TRUE(console->lines().empty());
}

TEST_F(RandomUserOverHttp, AFailedRequestIsQuiet) {
  EXPECT_EQ(fetchedNames(TestReply{""}), Names{});
  EXPECT_TRUE(console->lines().empty());
}

TEST_F(RandomUserOverHttp, UsersFetchedAheadFillTheQueue) {
  // Nobody may arrive before all have been asked for: a queue with users in it is taken from
  // instead.
  std::latch allAskedFor(1);
  serve([&](const std::string&) {
    allAskedFor.wait();
    return httpReply("200 OK", body("jane", "doe"));
  });
  User::generateRandomUsersWithCount(3);
  allAskedFor.count_down();
  for (int i = 0; i < 3; ++i) http->waitForOneReply();
  PrefetchQueue& queue = PrefetchQueue::sharedInstance();
  ASSERT_EQ(queue.size(), 3u);
  while (const UserRef user = queue.takeFirst()) EXPECT_EQ(user->name, "Jane Doe");
}

TEST_F(RandomUserOverHttp, RequestControllerPrintsTheStatus) {
  serve(httpReply("500 Internal Server Error", "oops"));
  MyRequestController().sendRequest();
  http->waitForOneReply();
  EXPECT_EQ(console->lines(), Names{"URL Session Task Succeeded: HTTP 500"});
}

TEST_F(RandomUserOverHttp, RequestControllerPrintsTheError) {
  serve(TestReply{""});
  MyRequestController().sendRequest();
  http->waitForOneReply();
  ASSERT_EQ(console->lines().size(), 1u);
  EXPECT_EQ(console->lines()[0], "URL Session Task Failed: Connection closed");
}

using RandomUserOverHttpDeathTest = RandomUserOverHttp;

TEST_F(RandomUserOverHttpDeathTest, AnObjectOfAnotherShapeStops) {
  EXPECT_DEATH(fetchedNames(httpReply("200 OK", "{}")),
               "fatal error: the reply lacks a proper \"results\"");
  EXPECT_DEATH(fetchedNames(httpReply("200 OK", R"({"results": []})")),
               "fatal error: the reply's first result is no object");
}

}  // namespace
}  // namespace kindora
