// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "model/MyRequestController.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

#include "model/RandomUserAddress.h"
#include "tests/model/RandomUserFixture.h"

namespace kindora {
namespace {

static_assert(std::is_empty_v<MyRequestController>);

using Lines = std::vector<std::string>;

class MyRequestControllerTest : public RandomUserFixture {
 protected:
  MyRequestController controller;
};

TEST_F(MyRequestControllerTest, SendsTheSameRequestAsTheUserFetch) {
  controller.sendRequest();
  EXPECT_EQ(fakes.http->sessionCount(), 1u);
  ASSERT_EQ(fakes.http->requests().size(), 1u);
  const HttpRequest request = fakes.http->requests()[0];
  EXPECT_EQ(request.url, randomUserAddress());
  EXPECT_EQ(request.method, "GET");
  EXPECT_TRUE(request.headers.empty());
  EXPECT_TRUE(request.body.empty());
}

TEST_F(MyRequestControllerTest, PrintsNothingBeforeTheOutcome) {
  controller.sendRequest();
  EXPECT_TRUE(fakes.console->lines().empty());
}

TEST_F(MyRequestControllerTest, PrintsTheErrorOfAFailedRequest) {
  controller.sendRequest();
  fakes.http->answer(0, HttpError{"Connection refused"});
  EXPECT_EQ(fakes.console->lines(), Lines{"URL Session Task Failed: Connection refused"});
}

TEST_F(MyRequestControllerTest, PrintsTheStatusCodeOfAResponse) {
  controller.sendRequest();
  fakes.http->answer(0, HttpResponse{200, "ignored"});
  EXPECT_EQ(fakes.console->lines(), Lines{"URL Session Task Succeeded: HTTP 200"});
}

TEST_F(MyRequestControllerTest, AServerErrorHasSucceededToo) {
  controller.sendRequest();
  fakes.http->answer(0, HttpResponse{500, ""});
  EXPECT_EQ(fakes.console->lines(), Lines{"URL Session Task Succeeded: HTTP 500"});
}

TEST_F(MyRequestControllerTest, DoesNotLookAtTheBody) {
  fakes.json->setValue("body", object({}));
  controller.sendRequest();
  fakes.http->answer(0, HttpResponse{200, "body"});
  EXPECT_EQ(fakes.console->lines().size(), 1u);
  EXPECT_EQ(PrefetchQueue::sharedInstance().size(), 0u);
}

TEST_F(MyRequestControllerTest, RequestOutlivesTheController) {
  { MyRequestController().sendRequest(); }
  fakes.http->answer(0, HttpResponse{204, ""});
  EXPECT_EQ(fakes.console->lines(), Lines{"URL Session Task Succeeded: HTTP 204"});
}

}  // namespace
}  // namespace kindora
