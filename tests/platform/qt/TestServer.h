// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/URL.h"

namespace kindora {

/// What the server does with one request: it sends the bytes and closes the connection, or keeps it
/// open until the server ends.
struct TestReply {
  std::string bytes;
  bool keepsOpen = false;
};

/// A complete response with that status line, for instance "404 Not Found", and body.
[[nodiscard]] TestReply httpReply(const std::string& status, const std::string& body,
                                  const std::string& headers = "");

/// A server on the loopback interface that answers one connection after the other, on a thread of
/// its own and over plain sockets.
class TestServer final {
 public:
  /// Gets the request, up to the end of its body, and says what to send. May run on several
  /// threads.
  using Handler = std::function<TestReply(const std::string& request)>;

  explicit TestServer(Handler handler);
  explicit TestServer(TestReply reply);
  TestServer(const TestServer&) = delete;
  TestServer& operator=(const TestServer&) = delete;
  ~TestServer();

  /// The address of the path, which starts with a slash.
  [[nodiscard]] URL url(const std::string& path = "/") const;
  /// All requests so far.
  [[nodiscard]] std::vector<std::string> requests() const;

 private:
  void acceptConnections();
  void serve(int connection);

  Handler handler_;
  int listener_ = -1;
  int port_ = 0;
  mutable std::mutex mutex_;
  std::vector<std::string> requests_;
  // Of the accepting thread, until it has ended.
  std::vector<int> connections_;
  std::vector<std::thread> servers_;
  std::thread acceptor_;
};

}  // namespace kindora
