// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace kindora {

class UIView;

enum class NSLayoutAttribute {
  notAnAttribute = 0,
  left = 1,
  right = 2,
  top = 3,
  bottom = 4,
  width = 7,
  height = 8,
  centerX = 9,
  centerY = 10,
  baseline = 11,
};

enum class NSLayoutRelation { lessThanOrEqual = -1, equal = 0, greaterThanOrEqual = 1 };

/// first.attribute (relation) multiplier * second.attribute + constant, in points.
struct NSLayoutConstraint {
  std::weak_ptr<UIView> firstItem;
  NSLayoutAttribute firstAttribute = NSLayoutAttribute::notAnAttribute;
  NSLayoutRelation relation = NSLayoutRelation::equal;
  std::weak_ptr<UIView> secondItem;
  NSLayoutAttribute secondAttribute = NSLayoutAttribute::notAnAttribute;
  double multiplier = 1;
  double constant = 0;
};

}  // namespace kindora
