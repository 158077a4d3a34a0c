// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeHttp.h"

#include <thread>
#include <utility>

#include "platform/FatalError.h"

namespace kindora {

class FakeHttp::Session final : public HttpSession {
 public:
  explicit Session(std::shared_ptr<Log> log) : log_(std::move(log)) {}

  void dataTask(const HttpRequest& request, Completion completion) override {
    const std::lock_guard lock(log_->mutex);
    log_->tasks.push_back({request, std::move(completion)});
  }

 private:
  std::shared_ptr<Log> log_;
};

std::shared_ptr<HttpSession> FakeHttp::makeSession() {
  const std::lock_guard lock(log_->mutex);
  ++log_->sessions;
  return std::make_shared<Session>(log_);
}

std::size_t FakeHttp::sessionCount() const {
  const std::lock_guard lock(log_->mutex);
  return log_->sessions;
}

std::vector<HttpRequest> FakeHttp::requests() const {
  const std::lock_guard lock(log_->mutex);
  std::vector<HttpRequest> result;
  for (const Task& task : log_->tasks) result.push_back(task.request);
  return result;
}

void FakeHttp::answer(std::size_t index, HttpResult result) {
  HttpSession::Completion completion;
  {
    const std::lock_guard lock(log_->mutex);
    if (index < log_->tasks.size()) completion = std::exchange(log_->tasks[index].completion, {});
  }
  if (!completion) fatalError("no request waits for this answer");
  std::thread([&] { completion(std::move(result)); }).join();
}

}  // namespace kindora
