// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What each helper makes, in order, and where it installs it. All numbers are the written ones, so
// that a renumbered attribute or relation is noticed.
#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/alerts/helpers/HelpersFixture.h"

namespace kindora {
namespace {

struct Made {
  int attribute = 0;
  int relation = 0;
  std::string second;  // empty for a constant size
  int secondAttribute = 0;
  double constant = 0;
  std::string owner;
  friend bool operator==(const Made&, const Made&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Made& made) {
    return out << made.attribute << " (" << made.relation << ") " << made.second << ' '
               << made.secondAttribute << " + " << made.constant << " on " << made.owner;
  }
};

std::string nameOf(const UIViewRef& view) { return view ? view->name() : ""; }

Made read(const NSLayoutConstraint& constraint) {
  return {static_cast<int>(constraint.firstAttribute()),
          static_cast<int>(constraint.relation()),
          nameOf(constraint.secondItem()),
          static_cast<int>(constraint.secondAttribute()),
          constraint.constant(),
          nameOf(constraint.owner())};
}

using Many = std::function<NSLayoutConstraints(const UIViewRef&, const UIViewRef&)>;
using One = std::function<NSLayoutConstraintRef(const UIViewRef&, const UIViewRef&)>;

struct Row {
  const char* name;
  Many make;
  std::vector<Made> made;
};

Row one(const char* name, One make, Made made) {
  return {name,
          [make](const auto& a, const auto& b) { return NSLayoutConstraints{make(a, b)}; },
          {std::move(made)}};
}
Row many(const char* name, Many make, std::vector<Made> made) {
  return {name, std::move(make), std::move(made)};
}

constexpr UIEdgeInsets kInsets{.top = 1, .left = 2, .bottom = 3, .right = 4};

// Of "view" and "other", which stand in "box".
std::vector<Row> rows() {
  using V = UIViewRef;
  using Edge = UIRectEdge;
  return {
      many("alignEdgesWithSuperview",
           [](const V& a, const V&) { return qav_alignEdgesWithSuperview(a, Edge::all); },
           {{3, 0, "box", 3, 0, "box"},
            {2, 0, "box", 2, 0, "box"},
            {4, 0, "box", 4, 0, "box"},
            {1, 0, "box", 1, 0, "box"}}),
      many("alignEdgesWithSuperviewInsets",
           [](const V& a, const V&) { return qav_alignEdgesWithSuperview(a, Edge::all, kInsets); },
           {{3, 0, "box", 3, 1, "box"},
            {2, 0, "box", 2, 4, "box"},
            {4, 0, "box", 4, 3, "box"},
            {1, 0, "box", 1, 2, "box"}}),
      many("alignEdges", [](const V& a, const V& b) { return qav_alignEdges(a, Edge::all, b); },
           {{3, 0, "other", 3, 0, "box"},
            {2, 0, "other", 2, 0, "box"},
            {4, 0, "other", 4, 0, "box"},
            {1, 0, "other", 1, 0, "box"}}),
      many("alignEdgesInsets",
           [](const V& a, const V& b) { return qav_alignEdges(a, Edge::all, b, kInsets); },
           {{3, 0, "other", 3, 1, "box"},
            {2, 0, "other", 2, 4, "box"},
            {4, 0, "other", 4, 3, "box"},
            {1, 0, "other", 1, 2, "box"}}),
      many("alignLeftAndBottom",
           [](const V& a, const V& b) {
             return qav_alignEdges(a, Edge::left | Edge::bottom, b, kInsets);
           },
           {{4, 0, "other", 4, 3, "box"}, {1, 0, "other", 1, 2, "box"}}),
      many("alignTopAndBitsBeyondTheEdges",
           [](const V& a, const V& b) { return qav_alignEdges(a, Edge{16 + 64 + 1}, b); },
           {{3, 0, "other", 3, 0, "box"}}),
      many("alignNoEdges", [](const V& a, const V& b) { return qav_alignEdges(a, Edge::none, b); },
           {}),
      one("alignEdge", [](const V& a, const V& b) { return qav_alignEdge(a, Edge::bottom, b); },
          {4, 0, "other", 4, 0, "box"}),
      one("alignEdgeInset",
          [](const V& a, const V& b) { return qav_alignEdge(a, Edge::right, b, 5); },
          {2, 0, "other", 2, 5, "box"}),
      one("alignEdgeWithEdge",
          [](const V& a, const V& b) { return qav_alignEdge(a, Edge::top, Edge::bottom, b); },
          {3, 0, "other", 4, 0, "box"}),
      one("alignEdgeWithEdgeInset",
          [](const V& a, const V& b) { return qav_alignEdge(a, Edge::left, Edge::right, b, -7); },
          {1, 0, "other", 2, -7, "box"}),
      many("alignCenters", [](const V& a, const V& b) { return qav_alignCentersWithView(a, b); },
           {{9, 0, "other", 9, 0, "box"}, {10, 0, "other", 10, 0, "box"}}),
      many("alignCentersOffset",
           [](const V& a, const V& b) {
             return qav_alignCentersWithView(a, b, {5, 6});
           },
           {{9, 0, "other", 9, 5, "box"}, {10, 0, "other", 10, 6, "box"}}),
      one("alignHorizontalCenter",
          [](const V& a, const V& b) { return qav_alignHorizontalCenterWithView(a, b); },
          {9, 0, "other", 9, 0, "box"}),
      one("alignHorizontalCenterOffset",
          [](const V& a, const V& b) { return qav_alignHorizontalCenterWithView(a, b, 8); },
          {9, 0, "other", 9, 8, "box"}),
      one("alignVerticalCenter",
          [](const V& a, const V& b) { return qav_alignVerticalCenterWithView(a, b); },
          {10, 0, "other", 10, 0, "box"}),
      one("alignVerticalCenterOffset",
          [](const V& a, const V& b) { return qav_alignVerticalCenterWithView(a, b, 8); },
          {10, 0, "other", 10, 8, "box"}),
      many("centerInSuperview", [](const V& a, const V&) { return qav_centerInSuperview(a); },
           {{9, 0, "box", 9, 0, "box"}, {10, 0, "box", 10, 0, "box"}}),
      many("centerInSuperviewOffset",
           [](const V& a, const V&) {
             return qav_centerInSuperviewWithOffset(a, {3, 4});
           },
           {{9, 0, "box", 9, 3, "box"}, {10, 0, "box", 10, 4, "box"}}),
      one("horizontallyCenterInSuperview",
          [](const V& a, const V&) { return qav_horizontallyCenterInSuperview(a); },
          {9, 0, "box", 9, 0, "box"}),
      one("horizontallyCenterInSuperviewOffset",
          [](const V& a, const V&) { return qav_horizontallyCenterInSuperviewWithOffset(a, -2); },
          {9, 0, "box", 9, -2, "box"}),
      one("verticallyCenterInSuperview",
          [](const V& a, const V&) { return qav_verticallyCenterInSuperview(a); },
          {10, 0, "box", 10, 0, "box"}),
      one("verticallyCenterInSuperviewOffset",
          [](const V& a, const V&) { return qav_verticallyCenterInSuperviewWithOffset(a, -2); },
          {10, 0, "box", 10, -2, "box"}),
      one("alignBaseline", [](const V& a, const V& b) { return qav_alignBaselineWithView(a, b); },
          {11, 0, "other", 11, 0, "box"}),
      one("alignBaselineOffset",
          [](const V& a, const V& b) { return qav_alignBaselineWithView(a, b, 2.5); },
          {11, 0, "other", 11, 2.5, "box"}),
      one("pinWidth", [](const V& a, const V&) { return qav_pinWidth(a, 20); },
          {7, 0, "", 0, 20, "view"}),
      one("setMinimumWidth", [](const V& a, const V&) { return qav_setMinimumWidth(a, 20); },
          {7, 1, "", 0, 20, "view"}),
      one("setMaximumWidth", [](const V& a, const V&) { return qav_setMaximumWidth(a, 20); },
          {7, -1, "", 0, 20, "view"}),
      one("setMaximumWidthToSuperviewWidth",
          [](const V& a, const V&) { return qav_setMaximumWidthToSuperviewWidth(a); },
          {7, -1, "box", 7, 0, "box"}),
      one("setMaximumWidthToSuperviewWidthOffset",
          [](const V& a, const V&) { return qav_setMaximumWidthToSuperviewWidthWithOffset(a, -9); },
          {7, -1, "box", 7, -9, "box"}),
      one("pinHeight", [](const V& a, const V&) { return qav_pinHeight(a, 20); },
          {8, 0, "", 0, 20, "view"}),
      one("setMinimumHeight", [](const V& a, const V&) { return qav_setMinimumHeight(a, 20); },
          {8, 1, "", 0, 20, "view"}),
      one("setMaximumHeight", [](const V& a, const V&) { return qav_setMaximumHeight(a, 20); },
          {8, -1, "", 0, 20, "view"}),
      one("setMaximumHeightToSuperviewHeight",
          [](const V& a, const V&) { return qav_setMaximumHeightToSuperviewHeight(a); },
          {8, -1, "box", 8, 0, "box"}),
      one("setMaximumHeightToSuperviewHeightOffset",
          [](const V& a, const V&) {
            return qav_setMaximumHeightToSuperviewHeightWithOffset(a, -9);
          },
          {8, -1, "box", 8, -9, "box"}),
      many("pinSize",
           [](const V& a, const V&) {
             return qav_pinSize(a, {11, 12});
           },
           {{7, 0, "", 0, 11, "view"}, {8, 0, "", 0, 12, "view"}}),
      one("pinWidthToWidth", [](const V& a, const V& b) { return qav_pinWidthToWidthOfView(a, b); },
          {7, 0, "other", 7, 0, "box"}),
      one("pinWidthToWidthOffset",
          [](const V& a, const V& b) { return qav_pinWidthToWidthOfView(a, b, 6); },
          {7, 0, "other", 7, 6, "box"}),
      one("pinHeightToHeight",
          [](const V& a, const V& b) { return qav_pinHeightToHeightOfView(a, b); },
          {8, 0, "other", 8, 0, "box"}),
      one("pinHeightToHeightOffset",
          [](const V& a, const V& b) { return qav_pinHeightToHeightOfView(a, b, 6); },
          {8, 0, "other", 8, 6, "box"}),
      many("pinSizeToSize", [](const V& a, const V& b) { return qav_pinSizeToSizeOfView(a, b); },
           {{7, 0, "other", 7, 0, "box"}, {8, 0, "other", 8, 0, "box"}}),
      many("pinSizeToSizeOffset",
           [](const V& a, const V& b) {
             return qav_pinSizeToSizeOfView(a, b, {1, 2});
           },
           {{7, 0, "other", 7, 1, "box"}, {8, 0, "other", 8, 2, "box"}}),
      one("spacingBehind",
          [](const V& a, const V& b) { return qav_pinHorizontalSpacing(a, 10.7, b); },
          {1, 0, "other", 2, 10.7, "box"}),
      one("spacingOfNone", [](const V& a, const V& b) { return qav_pinHorizontalSpacing(a, 0, b); },
          {1, 0, "other", 2, 0, "box"}),
      one("spacingOfMinusNone",
          [](const V& a, const V& b) { return qav_pinHorizontalSpacing(a, -0.0, b); },
          {1, 0, "other", 2, 0, "box"}),
      one("spacingInFrontLosesItsFraction",
          [](const V& a, const V& b) { return qav_pinHorizontalSpacing(a, -10.7, b); },
          {2, 0, "other", 1, 10, "box"}),
      one("spacingInFrontBelowOne",
          [](const V& a, const V& b) { return qav_pinHorizontalSpacing(a, -0.5, b); },
          {2, 0, "other", 1, 0, "box"}),
      one("spacingBelow", [](const V& a, const V& b) { return qav_pinVerticalSpacing(a, 10.7, b); },
          {3, 0, "other", 4, 10.7, "box"}),
      one("verticalSpacingOfMinusNone",
          [](const V& a, const V& b) { return qav_pinVerticalSpacing(a, -0.0, b); },
          {3, 0, "other", 4, 0, "box"}),
      one("spacingAboveLosesItsFraction",
          [](const V& a, const V& b) { return qav_pinVerticalSpacing(a, -3.99, b); },
          {4, 0, "other", 3, 3, "box"}),
      many("spacingBothWays",
           [](const V& a, const V& b) {
             return qav_pinSpacing(a, {5, -6.5}, b);
           },
           {{1, 0, "other", 2, 5, "box"}, {4, 0, "other", 3, 6, "box"}}),
  };
}

class QavAutoLayoutTable : public HelpersFixture, public ::testing::TestWithParam<Row> {};

TEST_P(QavAutoLayoutTable, MakesWhatIsWrittenAndInstallsIt) {
  const NSLayoutConstraints constraints = GetParam().make(view, other);
  std::vector<Made> made;
  for (const NSLayoutConstraintRef& constraint : constraints) {
    ASSERT_TRUE(constraint);
    EXPECT_EQ(constraint->firstItem(), view);
    EXPECT_EQ(constraint->multiplier(), 1);
    EXPECT_EQ(constraint->priority(), 1000);
    ASSERT_TRUE(constraint->owner());
    const NSLayoutConstraints& held = constraint->owner()->constraints();
    EXPECT_EQ(std::count(held.begin(), held.end(), constraint), 1);
    made.push_back(read(*constraint));
  }
  EXPECT_EQ(made, GetParam().made);
  // Nothing else was installed anywhere.
  std::size_t installed = 0;
  for (const UIViewRef& holder : {window, box, view, other, inner}) {
    installed += holder->constraints().size();
  }
  EXPECT_EQ(installed, constraints.size());
}

INSTANTIATE_TEST_SUITE_P(Helpers, QavAutoLayoutTable, ::testing::ValuesIn(rows()),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kindora
