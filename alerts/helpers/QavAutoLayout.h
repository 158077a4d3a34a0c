// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Layout constraints in one line each. Every function makes its constraints, installs them and
// returns them in the order that it tells, for instance to change a constant later:
//
//   qav_alignEdgesWithSuperview(label, UIRectEdge::left | UIRectEdge::right, {0, 16, 0, -16});
//   const auto height = qav_setMaximumHeight(label, 200);
//   height->setConstant(300);
//
// The view that comes first is the constraint's first item. Where a second view is involved the
// constraint is installed on the nearest view that holds both, a constant size on the view itself,
// a maximum taken from the superview on the superview. Two views that nothing holds both give a
// constraint that is installed nowhere; what speaks of the superview gives none without one. All
// distances are points, all multipliers 1, all constraints required.
#pragma once

#include <memory>
#include <vector>

#include "platform/Geometry.h"
#include "toolkit/view/NSLayoutConstraint.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// A set of edges: bits.
enum class UIRectEdge : unsigned { none = 0, top = 1, left = 2, bottom = 4, right = 8, all = 15 };

[[nodiscard]] constexpr UIRectEdge operator|(UIRectEdge a, UIRectEdge b) {
  return static_cast<UIRectEdge>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

/// Distances by which something is displaced.
struct UIOffset {
  double horizontal = 0;
  double vertical = 0;
  friend constexpr bool operator==(const UIOffset&, const UIOffset&) = default;
};

using NSLayoutConstraints = std::vector<NSLayoutConstraintRef>;

/// The view itself if the other lies inside it, the other if it is the other way round, else the
/// first view above the first that holds both; null when there is none.
[[nodiscard]] UIViewRef qav_commonAncestorWithView(const UIViewRef& view, const UIViewRef& other);
/// The attribute of exactly one edge; none for any other set.
[[nodiscard]] NSLayoutAttribute qav_layoutAttributeFromRectEdge(UIRectEdge edge);

// --- Edges ---

// In the order top, right, bottom, left, whichever of them are in the set. An inset is added as it
// stands: a positive one at the right or at the bottom leads outwards.
NSLayoutConstraints qav_alignEdgesWithSuperview(const UIViewRef& view, UIRectEdge edges,
                                                UIEdgeInsets insets = {});
NSLayoutConstraints qav_alignEdges(const UIViewRef& view, UIRectEdge edges,
                                   const UIViewRef& withView, UIEdgeInsets insets = {});
/// Null, and no constraint, for what is not exactly one edge on either side.
NSLayoutConstraintRef qav_alignEdge(const UIViewRef& view, UIRectEdge edge,
                                    const UIViewRef& withView, double inset = 0);
NSLayoutConstraintRef qav_alignEdge(const UIViewRef& view, UIRectEdge edge, UIRectEdge withEdge,
                                    const UIViewRef& ofView, double inset = 0);

// --- Centres and baselines ---

/// Horizontal, then vertical.
NSLayoutConstraints qav_alignCentersWithView(const UIViewRef& view, const UIViewRef& other,
                                             UIOffset offset = {});
NSLayoutConstraintRef qav_alignHorizontalCenterWithView(const UIViewRef& view,
                                                        const UIViewRef& other, double offset = 0);
NSLayoutConstraintRef qav_alignVerticalCenterWithView(const UIViewRef& view, const UIViewRef& other,
                                                      double offset = 0);
/// Horizontal, then vertical.
NSLayoutConstraints qav_centerInSuperview(const UIViewRef& view);
NSLayoutConstraints qav_centerInSuperviewWithOffset(const UIViewRef& view, UIOffset offset);
NSLayoutConstraintRef qav_horizontallyCenterInSuperview(const UIViewRef& view);
NSLayoutConstraintRef qav_horizontallyCenterInSuperviewWithOffset(const UIViewRef& view,
                                                                  double offset);
NSLayoutConstraintRef qav_verticallyCenterInSuperview(const UIViewRef& view);
NSLayoutConstraintRef qav_verticallyCenterInSuperviewWithOffset(const UIViewRef& view,
                                                                double offset);
NSLayoutConstraintRef qav_alignBaselineWithView(const UIViewRef& view, const UIViewRef& other,
                                                double offset = 0);

// --- Sizes ---

NSLayoutConstraintRef qav_pinWidth(const UIViewRef& view, double width);
NSLayoutConstraintRef qav_setMinimumWidth(const UIViewRef& view, double width);
NSLayoutConstraintRef qav_setMaximumWidth(const UIViewRef& view, double width);
NSLayoutConstraintRef qav_setMaximumWidthToSuperviewWidth(const UIViewRef& view);
NSLayoutConstraintRef qav_setMaximumWidthToSuperviewWidthWithOffset(const UIViewRef& view,
                                                                    double offset);
NSLayoutConstraintRef qav_pinHeight(const UIViewRef& view, double height);
NSLayoutConstraintRef qav_setMinimumHeight(const UIViewRef& view, double height);
NSLayoutConstraintRef qav_setMaximumHeight(const UIViewRef& view, double height);
NSLayoutConstraintRef qav_setMaximumHeightToSuperviewHeight(const UIViewRef& view);
NSLayoutConstraintRef qav_setMaximumHeightToSuperviewHeightWithOffset(const UIViewRef& view,
                                                                      double offset);
/// Width, then height.
NSLayoutConstraints qav_pinSize(const UIViewRef& view, CGSize size);
NSLayoutConstraintRef qav_pinWidthToWidthOfView(const UIViewRef& view, const UIViewRef& other,
                                                double offset = 0);
NSLayoutConstraintRef qav_pinHeightToHeightOfView(const UIViewRef& view, const UIViewRef& other,
                                                  double offset = 0);
/// Width, then height.
NSLayoutConstraints qav_pinSizeToSizeOfView(const UIViewRef& view, const UIViewRef& other,
                                            CGSize offset = {});

// --- Spacing ---

// From 0 on, the view stands behind the other, at that distance. Below 0 it stands in front of it:
// its far edge keeps from the other's near edge the distance without its sign and its fraction,
// added as it stands.
NSLayoutConstraintRef qav_pinHorizontalSpacing(const UIViewRef& view, double spacing,
                                               const UIViewRef& toView);
NSLayoutConstraintRef qav_pinVerticalSpacing(const UIViewRef& view, double spacing,
                                             const UIViewRef& toView);
/// Horizontal by the width, then vertical by the height.
NSLayoutConstraints qav_pinSpacing(const UIViewRef& view, CGSize spacing, const UIViewRef& toView);

}  // namespace kindora
