// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeTextMeasurer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace kindora {
namespace {

// The number of characters in each line of a paragraph that is broken at that many.
std::vector<std::size_t> linesOf(std::string_view paragraph, std::size_t limit) {
  std::vector<std::size_t> lines;
  while (paragraph.size() > limit) {
    const std::size_t blank = paragraph.rfind(' ', limit);
    const bool atBlank = blank != std::string_view::npos && blank > 0;
    lines.push_back(atBlank ? blank : limit);
    paragraph.remove_prefix(atBlank ? blank + 1 : limit);
  }
  lines.push_back(paragraph.size());
  return lines;
}

}  // namespace

TextExtent FakeTextMeasurer::measure(const NSAttributedString& text, const UIFont& font,
                                     double maximumWidth, int maximumLines) const {
  if (text.string().empty()) return {};
  const UIFont own = text.runs().front().attributes.font.value_or(font);
  const double advance = own.pointSize / 2;
  const std::size_t limit =
      maximumWidth > 0
          ? std::max<std::size_t>(1, static_cast<std::size_t>(std::floor(maximumWidth / advance)))
          : std::string_view::npos;
  std::vector<std::size_t> lines;
  std::string_view rest = text.string();
  while (true) {
    const std::size_t end = rest.find('\n');
    const std::vector<std::size_t> more = linesOf(rest.substr(0, end), limit);
    lines.insert(lines.end(), more.begin(), more.end());
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  if (maximumLines > 0 && lines.size() > static_cast<std::size_t>(maximumLines)) {
    lines.resize(static_cast<std::size_t>(maximumLines));
  }
  const double height = lineHeight(own) * static_cast<double>(lines.size());
  return {.size = {static_cast<double>(std::ranges::max(lines)) * advance, height},
          .firstBaseline = own.pointSize,
          .lastBaseline = height - lineHeight(own) + own.pointSize};
}

double FakeTextMeasurer::lineHeight(const UIFont& font) const { return font.pointSize * 1.25; }

}  // namespace kindora
