// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/VisualFormat.h"

#include <gmock/gmock.h>

#include <limits>
#include <ostream>

namespace kindora {

void PrintTo(const VisualFormatConstraint& constraint, std::ostream* out) {
  *out << constraint.firstItem << '.' << static_cast<int>(constraint.firstAttribute) << " ("
       << static_cast<int>(constraint.relation) << ") " << constraint.secondItem.value_or("none")
       << '.' << static_cast<int>(constraint.secondAttribute) << " + " << constraint.constant
       << " @" << constraint.priority;
}

namespace {

using testing::ElementsAre;
using enum NSLayoutAttribute;
using enum NSLayoutRelation;

const VisualFormatMetrics kMetrics{{"topSpace", 19}, {"labelSpace", 4}, {"low", 250}};

std::vector<VisualFormatConstraint> read(std::string_view format) {
  auto result = parseVisualFormat(format, kMetrics);
  if (const auto* error = std::get_if<VisualFormatError>(&result)) {
    ADD_FAILURE() << format << " at " << error->position << ": expected " << error->expected;
    return {};
  }
  return std::get<0>(std::move(result));
}

VisualFormatConstraint gap(const std::string& first, NSLayoutAttribute firstAttribute,
                           const std::string& second, NSLayoutAttribute secondAttribute,
                           double constant) {
  return {first, firstAttribute, equal, second, secondAttribute, constant};
}

TEST(VisualFormat, LabelsStandBelowEachOther) {
  EXPECT_THAT(read("V:|-(==topSpace)-[titleLabel]-(==labelSpace)-[messageLabel]"),
              ElementsAre(gap("titleLabel", top, "|", top, 19),
                          gap("messageLabel", top, "titleLabel", bottom, 4)));
}

TEST(VisualFormat, WithoutGapNeighboursTouch) {
  EXPECT_THAT(read("V:|[a][b]|"),
              ElementsAre(gap("a", top, "|", top, 0), gap("b", top, "a", bottom, 0),
                          gap("|", bottom, "b", bottom, 0)));
}

TEST(VisualFormat, HyphenAloneIsTheDefaultGapOfEight) {
  EXPECT_THAT(read("V:|-[a]-[b]-|"),
              ElementsAre(gap("a", top, "|", top, 8), gap("b", top, "a", bottom, 8),
                          gap("|", bottom, "b", bottom, 8)));
}

TEST(VisualFormat, NumbersAndMetricsNeedNoParentheses) {
  EXPECT_THAT(read("V:[a]-8.5-[b]-labelSpace-[c]"),
              ElementsAre(gap("b", top, "a", bottom, 8.5), gap("c", top, "b", bottom, 4)));
}

TEST(VisualFormat, RowsRunFromLeftToRightWithOrWithoutSayingSo) {
  EXPECT_THAT(read("H:|-[a]|"),
              ElementsAre(gap("a", left, "|", left, 8), gap("|", right, "a", right, 0)));
  EXPECT_EQ(read("|-[a]|"), read("H:|-[a]|"));
}

TEST(VisualFormat, SizesFollowTheirViewsGap) {
  EXPECT_THAT(read("V:|[field(==30)]-[b(labelSpace)]"),
              ElementsAre(gap("field", top, "|", top, 0),
                          VisualFormatConstraint{"field", height, equal, {}, notAnAttribute, 30},
                          gap("b", top, "field", bottom, 8),
                          VisualFormatConstraint{"b", height, equal, {}, notAnAttribute, 4}));
}

TEST(VisualFormat, RelationsAndPrioritiesAreListed) {
  EXPECT_THAT(
      read("[a(>=70,<=100@low)]-(>=8@750,==9)-[b]"),
      ElementsAre(VisualFormatConstraint{"a", width, greaterThanOrEqual, {}, notAnAttribute, 70},
                  VisualFormatConstraint{"a", width, lessThanOrEqual, {}, notAnAttribute, 100, 250},
                  VisualFormatConstraint{"b", left, greaterThanOrEqual, "a", right, 8, 750},
                  VisualFormatConstraint{"b", left, equal, "a", right, 9}));
}

TEST(VisualFormat, SizeMayBeThatOfAnotherView) {
  EXPECT_THAT(read("V:[a(==b)]"),
              ElementsAre(VisualFormatConstraint{"a", height, equal, "b", height, 0}));
}

TEST(VisualFormat, MetricWinsOverAViewOfItsName) {
  EXPECT_THAT(read("[a(low)]"),
              ElementsAre(VisualFormatConstraint{"a", width, equal, {}, notAnAttribute, 250}));
}

TEST(VisualFormat, ParenthesesTakeNegativeNumbers) {
  EXPECT_THAT(read("[a]-(-2.5)-[b]"), ElementsAre(gap("b", left, "a", right, -2.5)));
}

TEST(VisualFormat, ViewAloneSaysNothing) { EXPECT_TRUE(read("V:[a]").empty()); }

struct Refused {
  const char* name;
  std::string format;
  VisualFormatError error;
};

void PrintTo(const Refused& row, std::ostream* out) { *out << row.name; }

class VisualFormatRefusal : public testing::TestWithParam<Refused> {};

TEST_P(VisualFormatRefusal, TellsWhereAndWhatWasExpected) {
  const auto result = parseVisualFormat(GetParam().format, kMetrics);
  const auto* error = std::get_if<VisualFormatError>(&result);
  ASSERT_NE(error, nullptr) << GetParam().format;
  EXPECT_EQ(error->expected, GetParam().error.expected) << GetParam().format;
  EXPECT_EQ(error->position, GetParam().error.position) << GetParam().format;
}

INSTANTIATE_TEST_SUITE_P(
    , VisualFormatRefusal,
    testing::Values(
        Refused{"Nothing", "", {0, "an edge or a view"}},
        Refused{"DirectionAlone", "V:", {2, "an edge or a view"}},
        Refused{"Blank", "V: [a]", {2, "an edge or a view"}},
        Refused{"OtherDirection", "Z:|[a]", {0, "an edge or a view"}},
        Refused{"EdgesAlone", "V:||", {3, "a gap or a view"}},
        Refused{"GapBetweenEdges", "V:|-|", {4, "a gap or a view"}},
        Refused{"CutAfterGap", "V:[a]-", {6, "a number, a metric, a view or an edge"}},
        Refused{"CutAfterClosedGap", "[a]-8-", {6, "a view or an edge"}},
        Refused{"GapNotClosed", "[a]-8[b]", {5, "\"-\""}},
        Refused{"GapOfTwoHyphens", "[a]--[b]", {4, "a number, a metric, a view or an edge"}},
        Refused{"UnknownMetric", "[a]-space-[b]", {4, "a metric"}},
        Refused{"UnknownMetricInParentheses", "[a]-(>=space)-[b]", {7, "a metric"}},
        Refused{"NameMissing", "[a][]", {4, "a view's name"}},
        Refused{"NameOfDigits", "[1a]", {1, "a view's name"}},
        Refused{"NameOfOtherLetters", "[\xc3\xa4]", {1, "a view's name"}},
        Refused{"ViewNotClosed", "[a", {2, "\"(\" or \"]\""}},
        Refused{"ViewNotClosedAfterSize", "[a(3)", {5, "\"]\""}},
        Refused{"EmptyParentheses", "[a()]", {3, "a number, a metric or a view"}},
        Refused{"ParenthesesNotClosed", "[a(3]", {4, "\",\" or \")\""}},
        Refused{"HalfARelation", "[a(=3)]", {3, "a number, a metric or a view"}},
        Refused{"NotANumber", "[a(-nan)]", {3, "a number, a metric or a view"}},
        Refused{"NumberBeyondAllBounds",
                "[a(" + std::string(400, '9') + ")]",
                {3, "a number, a metric or a view"}},
        Refused{"PriorityMissing", "[a(3@)]", {5, "a number or a metric"}},
        Refused{"PriorityTooHigh", "[a(3@1000.5)]", {5, "a priority from 0 to 1000"}},
        Refused{"PriorityBelowZero", "[a(3@-1)]", {5, "a priority from 0 to 1000"}},
        Refused{"SomethingBehindTheEdge", "[a]|[b]", {4, "the end"}},
        Refused{"SomethingBehindTheView", "[a]b", {3, "a gap, a view, an edge or the end"}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(VisualFormat, MetricsMustBeFinite) {
  const auto result =
      parseVisualFormat("[a]-space-[b]", {{"space", std::numeric_limits<double>::infinity()}});
  ASSERT_TRUE(std::holds_alternative<VisualFormatError>(result));
  EXPECT_EQ(std::get<VisualFormatError>(result), (VisualFormatError{4, "a finite metric"}));
}

}  // namespace
}  // namespace kindora
