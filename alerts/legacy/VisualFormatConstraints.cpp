// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/VisualFormatConstraints.h"

#include <utility>

namespace kindora {
namespace {

UIViewRef viewNamed(const std::string& name, const VisualFormatViews& views) {
  const auto found = views.find(name);
  return found != views.end() ? found->second : nullptr;
}

// The item that the name means next to a neighbour, or null.
UIViewRef itemNamed(const std::string& name, const std::string& neighbour,
                    const VisualFormatViews& views) {
  if (name != kSuperviewName) return viewNamed(name, views);
  const UIViewRef view = viewNamed(neighbour, views);
  return view ? view->superview() : nullptr;
}

std::string missing(const std::string& name) {
  if (name == kSuperviewName) return "a view that has a superview";
  return "a view named \"" + name + '"';
}

}  // namespace

std::variant<std::vector<NSLayoutConstraintRef>, VisualFormatError> constraintsWithVisualFormat(
    std::string_view format, const VisualFormatMetrics& metrics, const VisualFormatViews& views) {
  auto read = parseVisualFormat(format, metrics);
  if (auto* error = std::get_if<VisualFormatError>(&read)) return std::move(*error);
  std::vector<NSLayoutConstraintRef> constraints;
  for (const VisualFormatConstraint& described : std::get<0>(read)) {
    const std::string& second = described.secondItem.value_or(described.firstItem);
    const auto firstItem = itemNamed(described.firstItem, second, views);
    const auto secondItem = itemNamed(second, described.firstItem, views);
    if (!firstItem) return VisualFormatError{format.size(), missing(described.firstItem)};
    if (!secondItem) return VisualFormatError{format.size(), missing(second)};
    NSLayoutConstraint::Parts parts{.firstItem = firstItem,
                                    .firstAttribute = described.firstAttribute,
                                    .relation = described.relation,
                                    .secondAttribute = described.secondAttribute,
                                    .constant = described.constant,
                                    .priority = described.priority};
    if (described.secondItem) parts.secondItem = secondItem;
    constraints.push_back(std::make_shared<NSLayoutConstraint>(std::move(parts)));
  }
  return constraints;
}

}  // namespace kindora
