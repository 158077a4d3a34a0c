// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Any text as a row or column of views.
#include "alerts/legacy/VisualFormat.h"

#include <cmath>
#include <string_view>
#include <variant>

#include "fuzz/Fuzz.h"

namespace {

using kindora::require;

void check(std::string_view format, const kindora::VisualFormatConstraint& constraint) {
  require(constraint.firstItem == kindora::kSuperviewName ||
              format.find("[" + constraint.firstItem) != std::string_view::npos,
          "every first item is written in the format");
  require(constraint.firstItem != constraint.secondItem || constraint.firstItem != "|",
          "the superview is laid out against views");
  require(constraint.secondItem.has_value() ==
              (constraint.secondAttribute != kindora::NSLayoutAttribute::notAnAttribute),
          "a second item has an attribute and no item has none");
  require(std::isfinite(constraint.constant), "constants are finite");
  require(constraint.priority >= 0 && constraint.priority <= kindora::kLayoutPriorityRequired,
          "priorities keep to their range");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view format = kindora::fuzzText(data, size);
  const auto read = kindora::parseVisualFormat(format, {{"space", 4}, {"high", 750}, {"a1", -3.5}});
  if (const auto* error = std::get_if<kindora::VisualFormatError>(&read)) {
    require(error->position <= size, "the position lies in the format or at its end");
    require(!error->expected.empty(), "the error says what was expected");
    return 0;
  }
  require(format.find('[') != std::string_view::npos, "a format has a view");
  for (const auto& constraint : std::get<0>(read)) check(format, constraint);
  return 0;
}
