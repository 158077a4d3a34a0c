// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <deque>

#include "platform/services/TextMeasurer.h"

namespace kindora {

/// Measures text as labels draw it. Remembers the latest answers, since a layout asks for the same
/// again and again.
class QtTextMeasurer final : public TextMeasurer {
 public:
  [[nodiscard]] TextExtent measure(const NSAttributedString& text, const UIFont& font,
                                   double maximumWidth, int maximumLines) const override;
  [[nodiscard]] double lineHeight(const UIFont& font) const override;

 private:
  struct Question {
    NSAttributedString text;
    UIFont font;
    double maximumWidth = 0;
    int maximumLines = 0;
    double textScale = 1;
    friend bool operator==(const Question&, const Question&) = default;
  };
  struct Answer {
    Question question;
    TextExtent extent;
  };
  mutable std::deque<Answer> latest_;  // newest first
};

}  // namespace kindora
