// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <variant>

#include "platform/URL.h"

namespace kindora {

struct HttpRequest {
  URL url;
  std::string method = "GET";
  std::map<std::string, std::string> headers;
  std::string body;
};

struct HttpResponse {
  int statusCode = 0;
  std::string body;
};

/// Why no response came: no connection, a time-out, a reply that is too large.
struct HttpError {
  std::string localizedDescription;
};

using HttpResult = std::variant<HttpResponse, HttpError>;

/// A session in which requests are made. A task outlives the session that started it.
class HttpSession {
 public:
  using Completion = std::function<void(HttpResult)>;

  virtual ~HttpSession() = default;
  /// Starts the request and returns at once. The completion runs exactly once, on the session's own
  /// callback queue, never on the caller's thread. Every status code is a response, not an error.
  virtual void dataTask(const HttpRequest& request, Completion completion) = 0;
};

/// Makes sessions with the default configuration: a time-out of 15 seconds and replies of at most
/// 1 MiB.
class HttpSessionFactory {
 public:
  virtual ~HttpSessionFactory() = default;
  [[nodiscard]] virtual std::shared_ptr<HttpSession> makeSession() = 0;
};

}  // namespace kindora
