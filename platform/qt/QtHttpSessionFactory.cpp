// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtHttpSessionFactory.h"

#include <utility>

#include "platform/qt/HttpTask.h"
#include "platform/qt/NetworkThread.h"

namespace kindora {
namespace {

class QtHttpSession final : public HttpSession {
 public:
  explicit QtHttpSession(std::chrono::milliseconds timeout) : timeout_(timeout) {}

  void dataTask(const HttpRequest& request, Completion completion) override {
    NetworkThread::sharedInstance().post(
        [request, timeout = timeout_,
         completion = std::move(completion)](QNetworkAccessManager& manager) {
          HttpTask::start(manager, request, timeout, completion);
        });
  }

 private:
  std::chrono::milliseconds timeout_;
};

}  // namespace

QtHttpSessionFactory::QtHttpSessionFactory(std::chrono::milliseconds timeout) : timeout_(timeout) {}

std::shared_ptr<HttpSession> QtHttpSessionFactory::makeSession() {
  return std::make_shared<QtHttpSession>(timeout_);
}

}  // namespace kindora
