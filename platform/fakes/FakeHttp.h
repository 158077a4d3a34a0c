// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <mutex>
#include <vector>

#include "platform/services/HttpSession.h"

namespace kindora {

/// Records the requests of all its sessions and answers them when told.
///
///     FakeHttp http;
///     http.makeSession()->dataTask({.url = url}, completion);
///     http.answer(0, HttpResponse{200, "[]"});  // runs the completion on another thread
class FakeHttp final : public HttpSessionFactory {
 public:
  [[nodiscard]] std::shared_ptr<HttpSession> makeSession() override;

  /// How many sessions were made.
  [[nodiscard]] std::size_t sessionCount() const;
  /// All requests of all sessions, in the order in which they were started.
  [[nodiscard]] std::vector<HttpRequest> requests() const;
  /// Runs the completion of the request with that index in requests(), on a thread of its own, and
  /// returns when it has run. May be called from several threads for different requests. Stops when
  /// there is no such request or it has been answered.
  void answer(std::size_t index, HttpResult result);

 private:
  class Session;
  struct Task {
    HttpRequest request;
    HttpSession::Completion completion;
  };
  struct Log {
    std::mutex mutex;
    std::size_t sessions = 0;
    std::vector<Task> tasks;
  };

  std::shared_ptr<Log> log_ = std::make_shared<Log>();
};

}  // namespace kindora
