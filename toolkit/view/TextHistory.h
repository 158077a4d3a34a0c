// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/TextRange.h"

namespace kindora {

/// What a text was before each of the user's edits, and after those that were taken back.
/// Characters typed one behind another are one edit.
class TextHistory {
 public:
  struct State {
    std::string text;
    NSRange selection;
  };

  /// The user has changed the text, by typing one character or otherwise, and selects now.
  void add(State before, NSRange selection, bool typed);
  /// The text before the last edit, and the one after the edit that was taken back last; none when
  /// there is no such edit.
  [[nodiscard]] std::optional<State> back(State now) {
    return move(past_, future_, std::move(now));
  }
  [[nodiscard]] std::optional<State> forth(State now) {
    return move(future_, past_, std::move(now));
  }
  void clear();

 private:
  std::optional<State> move(std::vector<State>& from, std::vector<State>& to, State now);

  std::vector<State> past_;
  std::vector<State> future_;
  std::optional<NSRange> typedTo_;  // where one more character would belong to the last edit
};

}  // namespace kindora
