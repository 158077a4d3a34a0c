// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/TextRange.h"
#include "platform/UIColor.h"
#include "platform/UIFont.h"

namespace kindora {

/// How part of a text looks. What is not set is the label's to choose.
struct NSTextAttributes {
  std::optional<UIFont> font;
  std::optional<UIColor> foregroundColor;
  friend bool operator==(const NSTextAttributes&, const NSTextAttributes&) = default;
};

/// UTF-8 text of which parts look different. A value; immutable but for appending.
class NSAttributedString final {
 public:
  /// A part with one look, in UTF-16 units.
  struct Run {
    NSRange range;
    NSTextAttributes attributes;
    friend bool operator==(const Run&, const Run&) = default;
  };

  NSAttributedString() = default;
  explicit NSAttributedString(std::string_view text, const NSTextAttributes& attributes = {});

  NSAttributedString& append(std::string_view text, const NSTextAttributes& attributes = {});

  [[nodiscard]] const std::string& string() const { return text_; }
  /// In order, without gaps; neighbours differ in look. None for an empty text.
  [[nodiscard]] const std::vector<Run>& runs() const { return runs_; }
  /// Whether any part sets the font, or the colour.
  [[nodiscard]] bool hasFont() const;
  [[nodiscard]] bool hasForegroundColor() const;

  friend bool operator==(const NSAttributedString&, const NSAttributedString&) = default;

 private:
  std::string text_;
  std::vector<Run> runs_;
};

}  // namespace kindora
