// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/QtTextMeasurer.h"

#include <algorithm>

#include "toolkit/quick/TextLines.h"
#include "toolkit/view/Palette.h"

namespace kindora {
namespace {

constexpr std::size_t kRemembered = 32;

}  // namespace

TextExtent QtTextMeasurer::measure(const NSAttributedString& text, const UIFont& font,
                                   double maximumWidth, int maximumLines) const {
  Question question{text, font, maximumWidth, maximumLines, theme::looks().textScale};
  const auto known = std::ranges::find(latest_, question, &Answer::question);
  if (known != latest_.end()) return known->extent;
  const TextExtent extent = TextLines(text, font, maximumWidth, maximumLines).extent();
  latest_.push_front({std::move(question), extent});
  if (latest_.size() > kRemembered) latest_.pop_back();
  return extent;
}

double QtTextMeasurer::lineHeight(const UIFont& font) const { return TextLines::lineHeight(font); }

}  // namespace kindora
