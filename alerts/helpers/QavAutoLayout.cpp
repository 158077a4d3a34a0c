// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/helpers/QavAutoLayout.h"

#include <cmath>
#include <utility>

namespace kindora {
namespace {

using Attribute = NSLayoutAttribute;
using Relation = NSLayoutRelation;

bool includes(UIRectEdge edges, UIRectEdge edge) {
  return (static_cast<unsigned>(edges) & static_cast<unsigned>(edge)) != 0;
}

NSLayoutConstraintRef install(NSLayoutConstraint::Parts parts, const UIViewRef& owner) {
  auto constraint = std::make_shared<NSLayoutConstraint>(std::move(parts));
  if (owner) owner->addConstraint(constraint);
  return constraint;
}

NSLayoutConstraintRef relate(const UIViewRef& view, Attribute attribute, const UIViewRef& other,
                             Attribute otherAttribute, double constant) {
  return install({.firstItem = view,
                  .firstAttribute = attribute,
                  .secondItem = other,
                  .secondAttribute = otherAttribute,
                  .constant = constant},
                 qav_commonAncestorWithView(view, other));
}

NSLayoutConstraintRef relate(const UIViewRef& view, Attribute attribute, const UIViewRef& other,
                             double constant) {
  return relate(view, attribute, other, attribute, constant);
}

NSLayoutConstraintRef relateToSuperview(const UIViewRef& view, Attribute attribute,
                                        double constant) {
  const UIViewRef superview = view->superview();
  return superview ? relate(view, attribute, superview, constant) : nullptr;
}

NSLayoutConstraintRef size(const UIViewRef& view, Attribute attribute, Relation relation,
                           double points) {
  return install(
      {.firstItem = view, .firstAttribute = attribute, .relation = relation, .constant = points},
      view);
}

NSLayoutConstraintRef limitToSuperview(const UIViewRef& view, Attribute attribute, double offset) {
  const UIViewRef superview = view->superview();
  if (!superview) return nullptr;
  return install({.firstItem = view,
                  .firstAttribute = attribute,
                  .relation = Relation::lessThanOrEqual,
                  .secondItem = superview,
                  .secondAttribute = attribute,
                  .constant = offset},
                 superview);
}

NSLayoutConstraintRef space(const UIViewRef& view, Attribute near, Attribute far, double spacing,
                            const UIViewRef& other) {
  if (spacing >= 0) return relate(view, near, other, far, spacing);
  return relate(view, far, other, near, std::trunc(std::abs(spacing)));
}

// Both, or none where there is none.
NSLayoutConstraints both(NSLayoutConstraintRef first, NSLayoutConstraintRef second) {
  NSLayoutConstraints all;
  if (first) all.push_back(std::move(first));
  if (second) all.push_back(std::move(second));
  return all;
}

}  // namespace

UIViewRef qav_commonAncestorWithView(const UIViewRef& view, const UIViewRef& other) {
  if (!other) return nullptr;
  if (other->contains(*view)) return other;
  for (UIViewRef up = view; up; up = up->superview()) {
    if (up->contains(*other)) return up;
  }
  return nullptr;
}

NSLayoutAttribute qav_layoutAttributeFromRectEdge(UIRectEdge edge) {
  switch (edge) {
    case UIRectEdge::top:
      return Attribute::top;
    case UIRectEdge::left:
      return Attribute::left;
    case UIRectEdge::bottom:
      return Attribute::bottom;
    case UIRectEdge::right:
      return Attribute::right;
    default:
      return Attribute::notAnAttribute;
  }
}

// --- Edges ---

NSLayoutConstraints qav_alignEdgesWithSuperview(const UIViewRef& view, UIRectEdge edges,
                                                UIEdgeInsets insets) {
  const UIViewRef superview = view->superview();
  return superview ? qav_alignEdges(view, edges, superview, insets) : NSLayoutConstraints{};
}

NSLayoutConstraints qav_alignEdges(const UIViewRef& view, UIRectEdge edges,
                                   const UIViewRef& withView, UIEdgeInsets insets) {
  NSLayoutConstraints all;
  for (const auto& [edge, inset] :
       {std::pair{UIRectEdge::top, insets.top}, std::pair{UIRectEdge::right, insets.right},
        std::pair{UIRectEdge::bottom, insets.bottom}, std::pair{UIRectEdge::left, insets.left}}) {
    if (includes(edges, edge)) all.push_back(qav_alignEdge(view, edge, withView, inset));
  }
  return all;
}

NSLayoutConstraintRef qav_alignEdge(const UIViewRef& view, UIRectEdge edge,
                                    const UIViewRef& withView, double inset) {
  return qav_alignEdge(view, edge, edge, withView, inset);
}

NSLayoutConstraintRef qav_alignEdge(const UIViewRef& view, UIRectEdge edge, UIRectEdge withEdge,
                                    const UIViewRef& ofView, double inset) {
  const Attribute own = qav_layoutAttributeFromRectEdge(edge);
  const Attribute other = qav_layoutAttributeFromRectEdge(withEdge);
  if (own == Attribute::notAnAttribute || other == Attribute::notAnAttribute) return nullptr;
  return relate(view, own, ofView, other, inset);
}

// --- Centres and baselines ---

NSLayoutConstraints qav_alignCentersWithView(const UIViewRef& view, const UIViewRef& other,
                                             UIOffset offset) {
  return both(qav_alignHorizontalCenterWithView(view, other, offset.horizontal),
              qav_alignVerticalCenterWithView(view, other, offset.vertical));
}

NSLayoutConstraintRef qav_alignHorizontalCenterWithView(const UIViewRef& view,
                                                        const UIViewRef& other, double offset) {
  return relate(view, Attribute::centerX, other, offset);
}

NSLayoutConstraintRef qav_alignVerticalCenterWithView(const UIViewRef& view, const UIViewRef& other,
                                                      double offset) {
  return relate(view, Attribute::centerY, other, offset);
}

NSLayoutConstraints qav_centerInSuperview(const UIViewRef& view) {
  return qav_centerInSuperviewWithOffset(view, {});
}

NSLayoutConstraints qav_centerInSuperviewWithOffset(const UIViewRef& view, UIOffset offset) {
  return both(qav_horizontallyCenterInSuperviewWithOffset(view, offset.horizontal),
              qav_verticallyCenterInSuperviewWithOffset(view, offset.vertical));
}

NSLayoutConstraintRef qav_horizontallyCenterInSuperview(const UIViewRef& view) {
  return qav_horizontallyCenterInSuperviewWithOffset(view, 0);
}

NSLayoutConstraintRef qav_horizontallyCenterInSuperviewWithOffset(const UIViewRef& view,
                                                                  double offset) {
  return relateToSuperview(view, Attribute::centerX, offset);
}

NSLayoutConstraintRef qav_verticallyCenterInSuperview(const UIViewRef& view) {
  return qav_verticallyCenterInSuperviewWithOffset(view, 0);
}

NSLayoutConstraintRef qav_verticallyCenterInSuperviewWithOffset(const UIViewRef& view,
                                                                double offset) {
  return relateToSuperview(view, Attribute::centerY, offset);
}

NSLayoutConstraintRef qav_alignBaselineWithView(const UIViewRef& view, const UIViewRef& other,
                                                double offset) {
  return relate(view, Attribute::baseline, other, offset);
}

// --- Sizes ---

NSLayoutConstraintRef qav_pinWidth(const UIViewRef& view, double width) {
  return size(view, Attribute::width, Relation::equal, width);
}

NSLayoutConstraintRef qav_setMinimumWidth(const UIViewRef& view, double width) {
  return size(view, Attribute::width, Relation::greaterThanOrEqual, width);
}

NSLayoutConstraintRef qav_setMaximumWidth(const UIViewRef& view, double width) {
  return size(view, Attribute::width, Relation::lessThanOrEqual, width);
}

NSLayoutConstraintRef qav_setMaximumWidthToSuperviewWidth(const UIViewRef& view) {
  return qav_setMaximumWidthToSuperviewWidthWithOffset(view, 0);
}

NSLayoutConstraintRef qav_setMaximumWidthToSuperviewWidthWithOffset(const UIViewRef& view,
                                                                    double offset) {
  return limitToSuperview(view, Attribute::width, offset);
}

NSLayoutConstraintRef qav_pinHeight(const UIViewRef& view, double height) {
  return size(view, Attribute::height, Relation::equal, height);
}

NSLayoutConstraintRef qav_setMinimumHeight(const UIViewRef& view, double height) {
  return size(view, Attribute::height, Relation::greaterThanOrEqual, height);
}

NSLayoutConstraintRef qav_setMaximumHeight(const UIViewRef& view, double height) {
  return size(view, Attribute::height, Relation::lessThanOrEqual, height);
}

NSLayoutConstraintRef qav_setMaximumHeightToSuperviewHeight(const UIViewRef& view) {
  return qav_setMaximumHeightToSuperviewHeightWithOffset(view, 0);
}

NSLayoutConstraintRef qav_setMaximumHeightToSuperviewHeightWithOffset(const UIViewRef& view,
                                                                      double offset) {
  return limitToSuperview(view, Attribute::height, offset);
}

NSLayoutConstraints qav_pinSize(const UIViewRef& view, CGSize wanted) {
  return both(qav_pinWidth(view, wanted.width), qav_pinHeight(view, wanted.height));
}

NSLayoutConstraintRef qav_pinWidthToWidthOfView(const UIViewRef& view, const UIViewRef& other,
                                                double offset) {
  return relate(view, Attribute::width, other, offset);
}

NSLayoutConstraintRef qav_pinHeightToHeightOfView(const UIViewRef& view, const UIViewRef& other,
                                                  double offset) {
  return relate(view, Attribute::height, other, offset);
}

NSLayoutConstraints qav_pinSizeToSizeOfView(const UIViewRef& view, const UIViewRef& other,
                                            CGSize offset) {
  return both(qav_pinWidthToWidthOfView(view, other, offset.width),
              qav_pinHeightToHeightOfView(view, other, offset.height));
}

// --- Spacing ---

NSLayoutConstraintRef qav_pinHorizontalSpacing(const UIViewRef& view, double spacing,
                                               const UIViewRef& toView) {
  return space(view, Attribute::left, Attribute::right, spacing, toView);
}

NSLayoutConstraintRef qav_pinVerticalSpacing(const UIViewRef& view, double spacing,
                                             const UIViewRef& toView) {
  return space(view, Attribute::top, Attribute::bottom, spacing, toView);
}

NSLayoutConstraints qav_pinSpacing(const UIViewRef& view, CGSize spacing, const UIViewRef& toView) {
  return both(qav_pinHorizontalSpacing(view, spacing.width, toView),
              qav_pinVerticalSpacing(view, spacing.height, toView));
}

}  // namespace kindora
