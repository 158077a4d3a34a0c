// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QNetworkAccessManager>
#include <QThread>
#include <functional>
#include <mutex>
#include <vector>

#include "platform/qt/Wakeup.h"

namespace kindora {

/// The thread on which all requests are made and all their completions run. It starts with the
/// first job and ends with the application object, or else at exit; a request that is then in
/// flight is dropped and its completion never runs.
class NetworkThread final : public QThread {
 public:
  using Job = std::function<void(QNetworkAccessManager&)>;

  /// The one thread of the process.
  [[nodiscard]] static NetworkThread& sharedInstance();

  /// Runs the job on the thread, after those given before; any thread. Does nothing once it has
  /// ended.
  void post(Job job);

 protected:
  void run() override;

 private:
  NetworkThread();
  static void end();
  void runJobs();

  std::mutex mutex_;
  std::vector<Job> jobs_;
  bool ended_ = false;

  QNetworkAccessManager* manager_ = nullptr;
  Wakeup wakeup_;
};

}  // namespace kindora
