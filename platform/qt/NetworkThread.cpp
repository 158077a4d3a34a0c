// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/NetworkThread.h"

#include <QCoreApplication>
#include <cstdlib>
#include <utility>

namespace kindora {

NetworkThread::NetworkThread() : wakeup_([this] { runJobs(); }) {
  wakeup_.moveToThread(this);
  start();
}

NetworkThread& NetworkThread::sharedInstance() {
  // Never destroyed, but ended while all that Qt needs still exists.
  static NetworkThread& instance = []() -> NetworkThread& {
    auto& thread = *new NetworkThread;
    qAddPostRoutine(&NetworkThread::end);
    std::atexit(&NetworkThread::end);
    return thread;
  }();
  return instance;
}

void NetworkThread::post(Job job) {
  const std::lock_guard lock(mutex_);
  if (ended_) return;
  jobs_.push_back(std::move(job));
  wakeup_.post();
}

void NetworkThread::run() {
  QNetworkAccessManager manager;
  manager_ = &manager;
  exec();
  manager_ = nullptr;
}

void NetworkThread::end() {
  NetworkThread& thread = sharedInstance();
  std::vector<Job> dropped;
  {
    const std::lock_guard lock(thread.mutex_);
    thread.ended_ = true;
    dropped.swap(thread.jobs_);
  }
  thread.quit();
  thread.wait();
}

void NetworkThread::runJobs() {
  std::vector<Job> jobs;
  {
    const std::lock_guard lock(mutex_);
    jobs.swap(jobs_);
  }
  for (Job& job : jobs) job(*manager_);
}

}  // namespace kindora
