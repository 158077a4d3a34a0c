// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/IcuTextService.h"

#include <gtest/gtest.h>
#include <unicode/locid.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace kindora {
namespace {

using Names = std::vector<std::string>;

class IcuTextServiceTest : public ::testing::Test {
 protected:
  [[nodiscard]] Names sorted(Names names) const {
    std::sort(names.begin(), names.end(), [this](const std::string& a, const std::string& b) {
      return text.compare(a, b) < 0;
    });
    return names;
  }

  IcuTextService text;
};

TEST_F(IcuTextServiceTest, LowerCaseDoesNotComeAfterUpperCase) {
  EXPECT_LT(text.compare("anna", "Zed"), 0);
  EXPECT_GT(text.compare("Zed", "anna"), 0);
}

TEST_F(IcuTextServiceTest, EqualTextsCompareAsZero) {
  EXPECT_EQ(text.compare("Jane the Cactus", "Jane the Cactus"), 0);
  EXPECT_EQ(text.compare("", ""), 0);
}

TEST_F(IcuTextServiceTest, ComposedAndDecomposedLettersAreEqual) {
  EXPECT_EQ(text.compare("\u00e9", "e\u0301"), 0);
}

TEST_F(IcuTextServiceTest, AccentedLettersStandAmongTheirBaseLetters) {
  EXPECT_EQ(sorted({"Eric", "Zoe", "Émile", "Emil", "Öz", "Oya", "Pia"}),
            (Names{"Emil", "Émile", "Eric", "Oya", "Öz", "Pia", "Zoe"}));
}

TEST_F(IcuTextServiceTest, CatalogueSendersSortByTheirWords) {
  EXPECT_EQ(sorted({"Your Boss", "Josh the Whale", "Joe in the Red Shirt", "Bob the Astronaut"}),
            (Names{"Bob the Astronaut", "Joe in the Red Shirt", "Josh the Whale", "Your Boss"}));
}

TEST_F(IcuTextServiceTest, EmptyTextComesFirst) { EXPECT_LT(text.compare("", "a"), 0); }

TEST_F(IcuTextServiceTest, CapitalisesEveryWordAndLowersTheRest) {
  EXPECT_EQ(text.capitalized("mARIA"), "Maria");
  EXPECT_EQ(text.capitalized("de la cruz"), "De La Cruz");
}

TEST_F(IcuTextServiceTest, CapitalisesBeyondAscii) {
  EXPECT_EQ(text.capitalized("élodie"), "Élodie");
  EXPECT_EQ(text.capitalized("ØRJAN"), "Ørjan");
  EXPECT_EQ(text.capitalized("жАННА ώΡΑ"), "Жанна Ώρα");
}

TEST_F(IcuTextServiceTest, CapitalisesAfterAHyphenButNotAfterAnApostrophe) {
  EXPECT_EQ(text.capitalized("jean-luc o'neil"), "Jean-Luc O'neil");
}

TEST_F(IcuTextServiceTest, CapitalisedEmptyTextIsEmpty) { EXPECT_EQ(text.capitalized(""), ""); }

TEST_F(IcuTextServiceTest, CapitalisingKeepsBlanks) {
  EXPECT_EQ(text.capitalized("  a  b "), "  A  B ");
}

TEST_F(IcuTextServiceTest, FoldsCaseWhateverTheAlphabet) {
  EXPECT_EQ(text.caseFolded("mARIA 42!"), "maria 42!");
  EXPECT_EQ(text.caseFolded("\u00c9mile"), "\u00e9mile");
  EXPECT_EQ(text.caseFolded("\u0416\u0410"), "\u0436\u0430");
}

TEST_F(IcuTextServiceTest, FoldsLettersOfOneSoundAlike) {
  EXPECT_EQ(text.caseFolded("Stra\u00dfe"), text.caseFolded("STRASSE"));
  EXPECT_EQ(text.caseFolded("\u03a3\u03c2"), text.caseFolded("\u03c3\u03c3"));
}

TEST_F(IcuTextServiceTest, FoldingLeavesAccentsAndBlanks) {
  EXPECT_NE(text.caseFolded("\u00e9"), text.caseFolded("e"));
  EXPECT_EQ(text.caseFolded(" A  b "), " a  b ");
  EXPECT_EQ(text.caseFolded(""), "");
}

TEST_F(IcuTextServiceTest, MalformedTextDoesNoHarm) {
  EXPECT_EQ(text.caseFolded("\xff"
                            "AB"),
            "\xff"
            "ab");
  EXPECT_EQ(text.capitalized("\xff"
                             "ab"),
            "\xEF\xBF\xBD"
            "Ab");
  EXPECT_NE(text.compare("\xff", "a"), 0);
}

TEST_F(IcuTextServiceTest, MayBeUsedByManyThreadsAtOnce) {
  std::vector<int> signs(8);
  std::vector<std::thread> threads;
  threads.reserve(signs.size());
  for (int& sign : signs) {
    threads.emplace_back(
        [this, &sign] { sign = text.compare("anna", text.capitalized("zed")) < 0 ? -1 : 1; });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(signs, std::vector<int>(8, -1));
}

// Each of these languages sorts or capitalises something in its own way: in Swedish "ö" follows
// "z", in Estonian "z" precedes "t", in Turkish "i" has a dotted capital, in Lithuanian "y" stands
// by "i".
class IcuTextServiceLocale : public ::testing::TestWithParam<const char*> {};

void leaveAsRootLocaleWould() {
  const IcuTextService text;
  const bool isRoot = text.compare("öl", "zoo") < 0 && text.compare("tee", "zoo") < 0 &&
                      text.compare("ya", "ka") > 0 && text.compare("a", "B") < 0 &&
                      text.capitalized("iVAN") == "Ivan" && text.caseFolded("I") == "i";
  std::_Exit(isRoot ? 0 : 1);
}

TEST_P(IcuTextServiceLocale, OfTheSystemDoesNotMatter) {
  // The test runs again in a program of its own, which starts with this locale.
  setenv("LC_ALL", GetParam(), 1);
  EXPECT_EXIT(
      {
        std::setlocale(LC_ALL, "");
        leaveAsRootLocaleWould();
      },
      ::testing::ExitedWithCode(0), "");
}

TEST_P(IcuTextServiceLocale, OfTheLibraryDoesNotMatter) {
  EXPECT_EXIT(
      {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale::setDefault(icu::Locale(GetParam()), status);
        leaveAsRootLocaleWould();
      },
      ::testing::ExitedWithCode(0), "");
}

INSTANTIATE_TEST_SUITE_P(Any, IcuTextServiceLocale,
                         ::testing::Values("C", "C.UTF-8", "en_US.UTF-8", "sv_SE.UTF-8",
                                           "et_EE.UTF-8", "tr_TR.UTF-8", "lt_LT.UTF-8"));

}  // namespace
}  // namespace kindora
