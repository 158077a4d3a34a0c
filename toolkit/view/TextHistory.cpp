// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/TextHistory.h"

#include <utility>

namespace kindora {

void TextHistory::add(State before, NSRange selection, bool typed) {
  if (!typed || typedTo_ != before.selection) past_.push_back(std::move(before));
  typedTo_ = typed ? std::optional(selection) : std::nullopt;
  future_.clear();
}

void TextHistory::clear() { *this = {}; }

std::optional<TextHistory::State> TextHistory::move(std::vector<State>& from,
                                                    std::vector<State>& to, State now) {
  if (from.empty()) return std::nullopt;
  State wanted = std::move(from.back());
  from.pop_back();
  to.push_back(std::move(now));
  typedTo_.reset();
  return wanted;
}

}  // namespace kindora
