// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ProcessInfo.h"

#include <utility>

namespace kindora {
namespace {

std::function<bool()>& question() {
  static std::function<bool()> replaced;  // main thread only
  return replaced;
}

}  // namespace

bool canAskForOperatingSystemVersion() { return question() ? question()() : true; }

void setOperatingSystemVersionQuestion(std::function<bool()> canBeAsked) {
  question() = std::move(canBeAsked);
}

}  // namespace kindora
