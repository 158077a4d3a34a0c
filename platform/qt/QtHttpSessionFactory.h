// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

#include "platform/services/HttpSession.h"

namespace kindora {

/// Sessions on Qt Network, over HTTP and HTTPS alone, without cookies or a cache. The callback
/// queue of all of them is the network thread. When the program ends with a request in flight, its
/// completion never runs.
class QtHttpSessionFactory final : public HttpSessionFactory {
 public:
  /// Requests fail when the whole reply has not come within the time-out.
  explicit QtHttpSessionFactory(std::chrono::milliseconds timeout = std::chrono::seconds(15));

  [[nodiscard]] std::shared_ptr<HttpSession> makeSession() override;

 private:
  std::chrono::milliseconds timeout_;
};

}  // namespace kindora
