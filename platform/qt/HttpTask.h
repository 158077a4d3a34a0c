// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <optional>
#include <string>

#include "platform/services/HttpSession.h"

namespace kindora {

/// One request on the network thread. Belongs to its reply and goes with it when all is over.
class HttpTask final : public QObject {
 public:
  /// Starts the request. The completion runs exactly once on this thread; with an error when the
  /// address is not of HTTP or HTTPS, or when the whole reply has not come within the time-out or
  /// is larger than 1 MiB.
  static void start(QNetworkAccessManager& manager, const HttpRequest& request,
                    std::chrono::milliseconds timeout, HttpSession::Completion completion);

 private:
  HttpTask(QNetworkReply* reply, HttpSession::Completion completion);

  void readHeaders();
  void readBody();
  void refuse(std::string reason);
  void finish();
  [[nodiscard]] HttpResult result() const;

  QNetworkReply* reply_;
  HttpSession::Completion completion_;
  QTimer deadline_;
  QByteArray body_;
  std::optional<std::string> refusal_;
};

}  // namespace kindora
