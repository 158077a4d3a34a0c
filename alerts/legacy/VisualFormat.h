// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Rows and columns of views written as one line of text:
//
//   V:|-(==topSpace)-[title]-8-[text(>=20,<=200@750)][button(==cancel)]-|
//
// "V:" stacks downwards, "H:" or nothing goes from left to right. "|" is the superview's edge and
// "[name]" a view, with its height or width in parentheses. Neighbours touch unless a gap stands
// between them: "-" alone is kDefaultGap, "-8-" and "-space-" are numbers or metrics, and "-(...)-"
// takes relations and priorities. There is no blank anywhere.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "toolkit/view/NSLayoutConstraint.h"

namespace kindora {

/// In points.
inline constexpr double kDefaultGap = 8;
/// The name under which a description speaks of the superview; no view can bear it.
inline constexpr std::string_view kSuperviewName = "|";

/// firstItem.firstAttribute (relation) secondItem.secondAttribute + constant. Later views refer to
/// earlier ones and the superview's far edge to the last, so that gaps count as positive constants.
struct VisualFormatConstraint {
  std::string firstItem;
  NSLayoutAttribute firstAttribute = NSLayoutAttribute::notAnAttribute;
  NSLayoutRelation relation = NSLayoutRelation::equal;
  std::optional<std::string> secondItem;  ///< none: the constant alone
  NSLayoutAttribute secondAttribute = NSLayoutAttribute::notAnAttribute;
  double constant = 0;  ///< in points
  double priority = kLayoutPriorityRequired;
  friend bool operator==(const VisualFormatConstraint&, const VisualFormatConstraint&) = default;
};

/// Why a format cannot be read.
struct VisualFormatError {
  std::size_t position = 0;  ///< byte of the format, its length when it ends too early
  std::string expected;      ///< what would have been right there, such as "a metric"
  friend bool operator==(const VisualFormatError&, const VisualFormatError&) = default;
};

/// Values by name; a name that is no metric in a view's parentheses is taken for another view's.
using VisualFormatMetrics = std::map<std::string, double, std::less<>>;

/// What the format says, from its start to its end: the gap before a view, then the view's own
/// sizes.
[[nodiscard]] std::variant<std::vector<VisualFormatConstraint>, VisualFormatError>
parseVisualFormat(std::string_view format, const VisualFormatMetrics& metrics);

}  // namespace kindora
