// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/platform/qt/TestServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/FatalError.h"

namespace kindora {
namespace {

// The number in the Content-Length header; 0 without one.
std::size_t announcedLength(const std::string& request) {
  constexpr std::string_view kName = "\r\nContent-Length: ";
  const std::size_t found = request.find(kName);
  return found == std::string::npos ? 0 : std::stoul(request.substr(found + kName.size()));
}

// Reads headers and body; what came so far when the other side closes.
std::string readRequest(int connection) {
  std::string request;
  std::array<char, 4096> chunk{};
  for (;;) {
    const std::size_t headersEnd = request.find("\r\n\r\n");
    if (headersEnd != std::string::npos &&
        request.size() >= headersEnd + 4 + announcedLength(request)) {
      return request;
    }
    const ssize_t count = recv(connection, chunk.data(), chunk.size(), 0);
    if (count <= 0) return request;
    request.append(chunk.data(), static_cast<std::size_t>(count));
  }
}

void sendAll(int connection, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (count <= 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace

TestReply httpReply(const std::string& status, const std::string& body,
                    const std::string& headers) {
  return {"HTTP/1.1 " + status + "\r\nConnection: close\r\nContent-Length: " +
          std::to_string(body.size()) + "\r\n" + headers + "\r\n" + body};
}

TestServer::TestServer(Handler handler) : handler_(std::move(handler)) {
  listener_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  if (bind(listener_, plain, size) != 0 || listen(listener_, SOMAXCONN) != 0 ||
      getsockname(listener_, plain, &size) != 0) {
    fatalError("the test server cannot listen");
  }
  port_ = ntohs(address.sin_port);
  acceptor_ = std::thread([this] { acceptConnections(); });
}

TestServer::TestServer(TestReply reply)
    : TestServer([reply = std::move(reply)](const std::string&) { return reply; }) {}

TestServer::~TestServer() {
  shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  close(listener_);
  for (const int connection : connections_) shutdown(connection, SHUT_RDWR);
  for (std::thread& server : servers_) server.join();
  for (const int connection : connections_) close(connection);
}

URL TestServer::url(const std::string& path) const {
  return *URL::URLWithString("http://127.0.0.1:" + std::to_string(port_) + path);
}

std::vector<std::string> TestServer::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

void TestServer::acceptConnections() {
  for (;;) {
    const int connection = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) return;
    connections_.push_back(connection);
    servers_.emplace_back([this, connection] { serve(connection); });
  }
}

void TestServer::serve(int connection) {
  const std::string request = readRequest(connection);
  if (request.empty()) return;
  {
    const std::lock_guard lock(mutex_);
    requests_.push_back(request);
  }
  const TestReply reply = handler_(request);
  sendAll(connection, reply.bytes);
  // Not closed yet, so that its number is not given to another file meanwhile.
  if (!reply.keepsOpen) shutdown(connection, SHUT_RDWR);
}

}  // namespace kindora
