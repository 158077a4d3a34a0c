// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "tests/hands/Hand.h"

namespace kindora {

/// Something that a user wants to do, from a program's start on, written once for every hand.
struct Flow {
  const char* name;
  Program::Launch launch;
  /// Throws CannotGoOn where the hand cannot go on, or where what comes of it is wrong.
  void (*play)(Hand& hand);

  friend void PrintTo(const Flow& flow, std::ostream* out) { *out << flow.name; }
};

/// All flows of both programs.
[[nodiscard]] std::vector<Flow> allFlows();

[[nodiscard]] std::vector<Flow> challengeFlows();
[[nodiscard]] std::vector<Flow> creationFlows();
[[nodiscard]] std::vector<Flow> friendFlows();
[[nodiscard]] std::vector<Flow> galleryFlows();
[[nodiscard]] std::vector<Flow> galleryAlertFlows();

/// Throws what is wrong unless it holds.
void require(bool holds, const std::string& what);

/// Throws unless the field holds that text.
void requireText(Hand& hand, const std::string& field, const std::string& text);

}  // namespace kindora
