// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// One linear relation between two sizes or edges of views:
// "first.attribute (relation) multiplier * second.attribute + constant".
//
// It has an effect while a view holds it (UIView::addConstraint) that is, or has inside it, all
// views that it names, and while at least one of them is placed by constraints. Left and right are
// the screen's: nothing is mirrored for scripts that run from right to left.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "toolkit/view/UIViewRef.h"

namespace kindora {

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
  baseline = 11,  ///< of the last line of text
  firstBaseline = 12,
};

enum class NSLayoutRelation { lessThanOrEqual = -1, equal = 0, greaterThanOrEqual = 1 };

/// How much a constraint weighs against others, 0 to 1000; the higher is served first.
inline constexpr double kLayoutPriorityRequired = 1000;
inline constexpr double kLayoutPriorityCompression = 750;
inline constexpr double kLayoutPriorityHugging = 250;

class NSLayoutConstraint final {
 public:
  struct Parts {
    std::weak_ptr<UIView> firstItem;
    NSLayoutAttribute firstAttribute = NSLayoutAttribute::notAnAttribute;
    NSLayoutRelation relation = NSLayoutRelation::equal;
    /// None for a constant size; without an attribute it counts for nothing.
    std::weak_ptr<UIView> secondItem;
    NSLayoutAttribute secondAttribute = NSLayoutAttribute::notAnAttribute;
    double multiplier = 1;
    double constant = 0;  ///< points
    double priority = kLayoutPriorityRequired;
  };

  NSLayoutConstraint() : NSLayoutConstraint(Parts{}) {}
  explicit NSLayoutConstraint(Parts parts);

  [[nodiscard]] UIViewRef firstItem() const { return parts_.firstItem.lock(); }
  [[nodiscard]] NSLayoutAttribute firstAttribute() const { return parts_.firstAttribute; }
  [[nodiscard]] NSLayoutRelation relation() const { return parts_.relation; }
  [[nodiscard]] UIViewRef secondItem() const { return parts_.secondItem.lock(); }
  [[nodiscard]] NSLayoutAttribute secondAttribute() const { return parts_.secondAttribute; }
  [[nodiscard]] double multiplier() const { return parts_.multiplier; }
  [[nodiscard]] double constant() const { return parts_.constant; }
  [[nodiscard]] double priority() const { return parts_.priority; }
  /// Takes effect at the next layout.
  void setConstant(double constant);

  /// The view that holds it; null while none does.
  [[nodiscard]] UIViewRef owner() const { return owner_.lock(); }
  /// Later ones have higher numbers.
  [[nodiscard]] std::uint64_t serial() const { return serial_; }
  /// As in "a.left = b.right + 8", with the views' names where they have one.
  [[nodiscard]] std::string description() const;

 private:
  friend class UIView;  // sets the owner

  Parts parts_;
  std::weak_ptr<UIView> owner_;
  std::uint64_t serial_;
};

using NSLayoutConstraintRef = std::shared_ptr<NSLayoutConstraint>;

}  // namespace kindora
