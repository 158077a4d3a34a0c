// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kindora {

/// What a demonstration of an alert is given.
struct AlertStage {
  /// Says on the page how the alert ended.
  std::function<void(const std::string& outcome)> tell;
  /// Opens the alert that the page declares.
  std::function<void()> openDeclaredAlert;
};

/// One row of the page: an alert that it shows.
struct AlertDemo {
  std::string title;
  std::string detail;  ///< one short line
  std::function<void(const AlertStage& stage)> show;
};

/// Demonstrations of one kind of alert.
struct AlertDemoSection {
  std::string title;
  std::vector<AlertDemo> demos;
};

}  // namespace kindora
