// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/RuleSet.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

constexpr PrefixText kNone;
constexpr PrefixText kIntl = "44";
constexpr PrefixText kTrunk = "0";

PhoneRule rule(std::int32_t minVal, std::int32_t maxVal, std::int32_t maxLen, int flags,
               std::string format) {
  PhoneRule result;
  result.minVal = minVal;
  result.maxVal = maxVal;
  result.maxLen = maxLen;
  result.flag12 = flags;
  result.format = std::move(format);
  return result;
}

// Every claim holds with the index and without it.
class RuleSetTest : public ::testing::TestWithParam<bool> {
 protected:
  RuleSet set(std::int32_t matchLen, std::vector<PhoneRule> rules) const {
    RuleSet result;
    result.matchLen = matchLen;
    for (PhoneRule& each : rules) result.append(std::move(each));
    if (GetParam()) result.buildIndex();
    return result;
  }
};
INSTANTIATE_TEST_SUITE_P(, RuleSetTest, ::testing::Bool(),
                         [](const auto& indexed) { return indexed.param ? "Indexed" : "Scanned"; });

TEST_P(RuleSetTest, FlagsTellWhetherSomeRuleHasThem) {
  const RuleSet none = set(1, {rule(1, 1, 3, kUnflagged, "###")});
  EXPECT_FALSE(none.hasRuleWithTrunkPrefix);
  EXPECT_FALSE(none.hasRuleWithIntlPrefix);
  const RuleSet both = set(1, {rule(1, 1, 3, kForTrunk, "###"), rule(1, 1, 3, kForIntl, "###")});
  EXPECT_TRUE(both.hasRuleWithTrunkPrefix);
  EXPECT_TRUE(both.hasRuleWithIntlPrefix);
}

TEST_P(RuleSetTest, NumberShorterThanMatchLenFitsNothing) {
  const RuleSet two = set(2, {rule(0, 99, 4, kUnflagged, "####")});
  EXPECT_EQ(two.format("1", kNone, kNone, false), std::nullopt);
  EXPECT_FALSE(set(2, {rule(0, 99, 1, kUnflagged, "#")}).isValid("1", kNone, kNone, false));
}

TEST_P(RuleSetTest, RangeIsInclusiveAtBothEnds) {
  const RuleSet two = set(2, {rule(20, 29, 4, kUnflagged, "####")});
  EXPECT_TRUE(two.format("20", kNone, kNone, true));
  EXPECT_TRUE(two.format("29", kNone, kNone, true));
  EXPECT_FALSE(two.format("19", kNone, kNone, true));
  EXPECT_FALSE(two.format("30", kNone, kNone, true));
}

TEST_P(RuleSetTest, LeadingZerosCountAsDigits) {
  EXPECT_EQ(set(3, {rule(7, 7, 4, kUnflagged, "### #")}).format("0071", kNone, kNone, true),
            "007 1");
}

TEST_P(RuleSetTest, ValueEndsAtTheFirstCharacterThatIsNoDigit) {
  EXPECT_EQ(set(2, {rule(0, 0, 4, kUnflagged, "## ##")}).format("*67", kNone, kNone, true), "*6 7");
  EXPECT_EQ(set(3, {rule(4, 4, 4, kUnflagged, "##-##")}).format("4+1", kNone, kNone, true), "4+-1");
}

TEST_P(RuleSetTest, MatchLenZeroComparesZeroEvenWithoutDigits) {
  const RuleSet zero = set(0, {rule(0, 0, 3, kUnflagged, "###")});
  EXPECT_EQ(zero.format("", kNone, kNone, true), "");
  EXPECT_EQ(zero.format("999", kNone, kNone, true), "999");
  EXPECT_EQ(set(0, {rule(1, 9, 3, kUnflagged, "###")}).format("999", kNone, kNone, true),
            std::nullopt);
}

TEST_P(RuleSetTest, ValueOfManyDigitsStaysAtTheGreatest) {
  const RuleSet twelve = set(12, {rule(INT32_MAX, INT32_MAX, 12, kUnflagged, "############")});
  EXPECT_TRUE(twelve.isValid("999999999999", kNone, kNone, true));
  EXPECT_FALSE(twelve.isValid("000000000001", kNone, kNone, true));
}

TEST_P(RuleSetTest, BoundsAreSigned) {
  EXPECT_FALSE(set(1, {rule(0, -1, 1, kUnflagged, "#")}).isValid("5", kNone, kNone, true));
  EXPECT_TRUE(set(1, {rule(-1, 9, 1, kUnflagged, "#")}).isValid("5", kNone, kNone, true));
}

TEST_P(RuleSetTest, FormattingTakesShorterNumbersValidationTheExactLength) {
  const RuleSet one = set(1, {rule(1, 9, 3, kUnflagged, "#-##")});
  EXPECT_EQ(one.format("12", kNone, kNone, true), "1-2");
  EXPECT_EQ(one.format("123", kNone, kNone, true), "1-23");
  EXPECT_EQ(one.format("1234", kNone, kNone, true), std::nullopt);
  EXPECT_FALSE(one.isValid("12", kNone, kNone, true));
  EXPECT_TRUE(one.isValid("123", kNone, kNone, true));
  EXPECT_FALSE(one.isValid("1234", kNone, kNone, true));
}

TEST_P(RuleSetTest, StarsCountForTheLength) {
  EXPECT_TRUE(set(1, {rule(0, 0, 3, kUnflagged, "###")}).isValid("*#+", kNone, kNone, true));
}

TEST_P(RuleSetTest, FirstFittingRuleWins) {
  const RuleSet one = set(1, {rule(5, 5, 2, kUnflagged, "#.#"), rule(1, 9, 4, kUnflagged, "#-###"),
                              rule(1, 9, 4, kUnflagged, "##/##")});
  EXPECT_EQ(one.format("51", kNone, kNone, true), "5.1");
  EXPECT_EQ(one.format("512", kNone, kNone, true), "5-12");
  EXPECT_EQ(one.format("61", kNone, kNone, true), "6-1");
}

TEST_P(RuleSetTest, RequiredWithoutPrefixTakesUnflaggedRulesOnly) {
  const RuleSet one = set(1, {rule(1, 1, 2, kForTrunk, "#.#"), rule(1, 1, 2, kForIntl, "#-#"),
                              rule(1, 1, 2, kUnflagged, "#/#")});
  EXPECT_EQ(one.format("12", kNone, kNone, true), "1/2");
  EXPECT_EQ(one.format("12", kNone, kNone, false), "1.2");
}

TEST_P(RuleSetTest, RequiredPrefixTakesRulesFlaggedForIt) {
  const RuleSet one = set(1, {rule(1, 1, 2, kUnflagged, "#/#"), rule(1, 1, 2, kForTrunk, "#.#"),
                              rule(1, 1, 2, kForIntl, "#-#")});
  EXPECT_EQ(one.format("12", kNone, kTrunk, true), "01.2");
  EXPECT_EQ(one.format("12", kIntl, kNone, true), "44 1-2");
}

TEST_P(RuleSetTest, RequiredPrefixWithoutFlaggedRuleGivesNothing) {
  const RuleSet one = set(1, {rule(1, 1, 2, kUnflagged, "#/#")});
  EXPECT_EQ(one.format("12", kIntl, kNone, true), std::nullopt);
  EXPECT_FALSE(one.isValid("12", kIntl, kNone, true));
  EXPECT_EQ(one.format("12", kNone, kTrunk, true), std::nullopt);
  EXPECT_FALSE(one.isValid("12", kNone, kTrunk, true));
}

TEST_P(RuleSetTest, FlaggedRuleStandsBeforeAnEarlierUnflaggedOneEvenWhenNotRequired) {
  const RuleSet one = set(1, {rule(1, 1, 2, kUnflagged, "#/#"), rule(1, 1, 2, kForTrunk, "#.#")});
  EXPECT_EQ(one.format("12", kNone, kTrunk, false), "01.2");
}

TEST_P(RuleSetTest, TrunkFallsBackToAnyRule) {
  const RuleSet one = set(1, {rule(1, 1, 2, kForIntl, "#-#")});
  EXPECT_EQ(one.format("12", kNone, kTrunk, false), "01-2");
}

TEST_P(RuleSetTest, CallingCodeFallsBackToAnyRuleWithoutTrunk) {
  const RuleSet one = set(1, {rule(1, 1, 2, kForTrunk, "#.#")});
  EXPECT_EQ(one.format("12", kIntl, kNone, false), "44 1.2");
}

TEST_P(RuleSetTest, CallingCodeWithTrunkFallsBackToTrunkRulesOnly) {
  const RuleSet one = set(1, {rule(2, 2, 2, kUnflagged, "#/#"), rule(1, 2, 2, kForTrunk, "n#.#")});
  EXPECT_EQ(one.format("22", kIntl, kTrunk, false), "44 02.2");
  EXPECT_EQ(set(1, {rule(1, 1, 2, kUnflagged, "#/#")}).format("12", kIntl, kTrunk, false),
            std::nullopt);
}

TEST_P(RuleSetTest, NoPrefixHasNoFallBack) {
  EXPECT_EQ(set(1, {rule(1, 1, 2, kUnflagged, "##")}).format("3", kNone, kNone, false),
            std::nullopt);
}

TEST_P(RuleSetTest, ValidWithCallingCodeByAnyRuleWhereTheSetHasNoneForIt) {
  EXPECT_TRUE(set(1, {rule(1, 1, 2, kForTrunk, "##")}).isValid("12", kIntl, kNone, false));
}

TEST_P(RuleSetTest, OneRuleForCallingCodesAnywhereInTheSetEndsThat) {
  const RuleSet one = set(1, {rule(1, 1, 2, kForTrunk, "##"), rule(9, 9, 2, kForIntl, "##")});
  EXPECT_FALSE(one.isValid("12", kIntl, kNone, false));
  EXPECT_EQ(one.format("12", kIntl, kNone, false), "44 12");
}

TEST_P(RuleSetTest, ValidWithCallingCodeAndTrunkByTrunkRulesOnly) {
  EXPECT_FALSE(set(1, {rule(1, 1, 2, kUnflagged, "##")}).isValid("12", kIntl, kTrunk, false));
  EXPECT_TRUE(set(1, {rule(1, 1, 2, kForTrunk, "##")}).isValid("12", kIntl, kTrunk, false));
}

TEST_P(RuleSetTest, ValidWithTrunkByAnyRuleWhereTheSetHasNoneForIt) {
  EXPECT_TRUE(set(1, {rule(1, 1, 2, kUnflagged, "##")}).isValid("12", kNone, kTrunk, false));
  EXPECT_TRUE(set(1, {rule(1, 1, 2, kForIntl, "##")}).isValid("12", kNone, kTrunk, false));
}

TEST_P(RuleSetTest, OneTrunkRuleAnywhereInTheSetEndsThat) {
  const RuleSet one = set(1, {rule(1, 1, 2, kUnflagged, "##"), rule(9, 9, 2, kForTrunk, "##")});
  EXPECT_FALSE(one.isValid("12", kNone, kTrunk, false));
  EXPECT_EQ(one.format("12", kNone, kTrunk, false), "012");
}

TEST_P(RuleSetTest, ValidWithTrunkAndCallingCodeNeedsAnIntlRuleWhereTheSetHasOne) {
  const RuleSet one = set(1, {rule(1, 1, 2, kUnflagged, "##"), rule(2, 2, 2, kForIntl, "##")});
  EXPECT_FALSE(one.isValid("12", kIntl, kTrunk, false));
  EXPECT_TRUE(one.isValid("22", kIntl, kTrunk, false));
}

TEST_P(RuleSetTest, ValidWithoutPrefixByAnyFlagsUnlessRequired) {
  const RuleSet one = set(1, {rule(1, 1, 2, kForIntl, "##")});
  EXPECT_TRUE(one.isValid("12", kNone, kNone, false));
  EXPECT_FALSE(one.isValid("12", kNone, kNone, true));
}

TEST_P(RuleSetTest, EmptySetFitsNothing) {
  EXPECT_EQ(set(0, {}).format("1", kIntl, kNone, false), std::nullopt);
  EXPECT_FALSE(set(0, {}).isValid("", kNone, kNone, false));
}

TEST_P(RuleSetTest, DescriptionListsTheRules) {
  EXPECT_EQ(set(2, {}).description(), "RuleSet: { matchLen: 2, rules: () }");
  const RuleSet two = set(2, {rule(1, 1, 1, 0, "#"), rule(2, 2, 1, 0, "#")});
  EXPECT_EQ(two.description(), "RuleSet: { matchLen: 2, rules: (" + two.rules[0].description() +
                                   ", " + two.rules[1].description() + ") }");
}

TEST(RuleSetIndex, ACopyMayBeChangedAndFollowsItsOwnRules) {
  RuleSet indexed;
  indexed.matchLen = 1;
  indexed.append(rule(1, 1, 2, kUnflagged, "##"));
  indexed.buildIndex();
  RuleSet copy = indexed;
  copy.rules[0].minVal = copy.rules[0].maxVal = 5;
  EXPECT_TRUE(copy.isValid("52", kNone, kNone, true));
  EXPECT_FALSE(copy.isValid("12", kNone, kNone, true));
  EXPECT_TRUE(indexed.isValid("12", kNone, kNone, true));
}

// What a plan asks of a set before it looks at the rules.
bool mayHold(const RuleSet& set, std::string_view number) {
  if (!set.mayHaveLength(number.size())) return false;
  if (number.size() < 2) return true;
  const auto first = static_cast<unsigned>(number[0] - '0');
  const auto second = static_cast<unsigned>(number[1] - '0');
  return first > 9 || second > 9 || set.mayStartWith(first, second);
}

TEST(RuleSetIndex, PassesOverNoNumberThatAScanFinds) {
  const char kSigns[] = "0129*";
  std::vector<std::string> numbers{""};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::string number = numbers[i];
    if (number.size() < 4) {
      for (const char ch : std::string_view(kSigns)) numbers.push_back(number + ch);
    }
  }
  for (const auto& [low, high] : {std::pair{120, 219}, {20, 35}, {0, 0}, {990, 2000}, {-5, 100}}) {
    RuleSet scanned;
    scanned.matchLen = 3;
    scanned.append(rule(low, high, 4, kUnflagged, "####"));
    RuleSet indexed = scanned;
    indexed.buildIndex();
    for (const std::string& number : numbers) {
      const auto found = scanned.format(number, kNone, kNone, true);
      EXPECT_EQ(indexed.format(number, kNone, kNone, true), found)
          << number << " from " << low << " to " << high;
      EXPECT_TRUE(!found || mayHold(indexed, number))
          << number << " from " << low << " to " << high;
    }
  }
}

TEST(RuleSetIndex, PassesOverWhatNoRuleCanHold) {
  RuleSet set;
  set.matchLen = 3;
  set.append(rule(120, 219, 4, kUnflagged, "####"));
  EXPECT_TRUE(mayHold(set, "3000"));
  set.buildIndex();
  EXPECT_FALSE(mayHold(set, "3000"));
  EXPECT_FALSE(mayHold(set, "12"));
  EXPECT_FALSE(mayHold(set, "12000"));
  EXPECT_TRUE(mayHold(set, "2190"));
}

TEST(RuleSetIndex, StaysEmptyWhereTooManyRangesOverlap) {
  std::vector<PhoneRule> nested;
  for (int i = 0; i < 100; ++i) nested.push_back(rule(i, 1000 - i, 3, kUnflagged, "###"));
  RuleIndex index;
  index.build(nested, 3);
  EXPECT_TRUE(index.empty());
}

TEST(RuleSetIndex, FindsWhatAScanFinds) {
  const std::vector<PhoneRule> rules{rule(5, 9, 3, 0, "#"), rule(1, 6, 3, 0, "#"),
                                     rule(9, 2, 3, 0, "#"), rule(-4, -1, 3, 0, "#"),
                                     rule(6, INT32_MAX - 1, 3, 0, "#")};
  RuleIndex index;
  index.build(rules, 1);
  ASSERT_FALSE(index.empty());
  for (const std::int32_t value : {INT32_MIN, -5, -4, -1, 0, 1, 5, 6, 7, 9, 10, INT32_MAX}) {
    std::vector<std::uint16_t> expected;
    for (std::uint16_t i = 0; i < rules.size(); ++i) {
      if (rules[i].minVal <= value && value <= rules[i].maxVal) expected.push_back(i);
    }
    const auto found = index.rulesFor(value);
    EXPECT_EQ(std::vector(found.begin(), found.end()), expected) << value;
  }
}

TEST(RuleSetIndex, StaysEmptyWhereARangeReachesTheGreatestValue) {
  RuleIndex index;
  index.build({rule(5, 9, 3, 0, "#"), rule(6, INT32_MAX, 3, 0, "#")}, 1);
  EXPECT_TRUE(index.empty());
}

}  // namespace
}  // namespace kindora
