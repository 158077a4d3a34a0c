// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/NSAttributedString.h"

#include <algorithm>

namespace kindora {

NSAttributedString::NSAttributedString(std::string_view text, const NSTextAttributes& attributes) {
  append(text, attributes);
}

NSAttributedString& NSAttributedString::append(std::string_view text,
                                               const NSTextAttributes& attributes) {
  if (text.empty()) return *this;
  const std::size_t length = utf16Length(text);
  if (!runs_.empty() && runs_.back().attributes == attributes) {
    runs_.back().range.length += length;
  } else {
    runs_.push_back({{runs_.empty() ? 0 : runs_.back().range.end(), length}, attributes});
  }
  text_ += text;
  return *this;
}

bool NSAttributedString::hasFont() const {
  return std::ranges::any_of(runs_, [](const Run& run) { return run.attributes.font.has_value(); });
}

bool NSAttributedString::hasForegroundColor() const {
  return std::ranges::any_of(
      runs_, [](const Run& run) { return run.attributes.foregroundColor.has_value(); });
}

}  // namespace kindora
