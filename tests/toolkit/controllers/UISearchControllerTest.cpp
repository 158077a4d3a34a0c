// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UISearchController.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kindora {
namespace {

using Told = std::vector<std::string>;

// A search that writes down what it is told: "update an".
class UISearchControllerTest : public ::testing::Test,
                               public UISearchResultsUpdating,
                               public UISearchControllerDelegate {
 protected:
  UISearchControllerTest() {
    search.searchResultsUpdater = this;
    search.delegate = this;
  }

  void updateSearchResultsForSearchController(UISearchController& controller) override {
    told.push_back("update " + controller.searchBar()->text().toStdString());
  }
  void didDismissSearchController(UISearchController& controller) override {
    told.push_back("dismissed " + controller.searchBar()->text().toStdString());
    activeAtDismissal = controller.isActive();
  }
  [[nodiscard]] UISearchBar& bar() { return *search.searchBar(); }
  Told log() { return std::exchange(told, {}); }

  UISearchController search;
  Told told;
  bool activeAtDismissal = true;
};

TEST_F(UISearchControllerTest, IsNotActiveAtTheStart) {
  EXPECT_FALSE(search.isActive());
  EXPECT_TRUE(search.dimsBackgroundDuringPresentation);
  EXPECT_TRUE(search.hidesNavigationBarDuringPresentation);
  EXPECT_EQ(log(), (Told{}));
}

TEST_F(UISearchControllerTest, BeginsWhenTheBarIsPressed) {
  bar().press();
  EXPECT_TRUE(search.isActive());
  EXPECT_TRUE(bar().showsCancelButton());
}

TEST_F(UISearchControllerTest, AsksForTheResultsOfNoTextWhenItBegins) {
  bar().press();
  EXPECT_EQ(log(), (Told{"update "}));
}

TEST_F(UISearchControllerTest, AsksForResultsAtEveryEdit) {
  bar().press();
  log();
  bar().edit(QStringLiteral("a"));
  bar().edit(QStringLiteral("an"));
  bar().edit(QString());
  EXPECT_EQ(log(), (Told{"update a", "update an", "update "}));
}

TEST_F(UISearchControllerTest, BeginsAtAnEditToo) {
  bar().edit(QStringLiteral("a"));
  EXPECT_TRUE(search.isActive());
  EXPECT_EQ(log(), (Told{"update a"}));
}

TEST_F(UISearchControllerTest, StaysActiveWithoutTheKeyboard) {
  bar().press();
  bar().edit(QStringLiteral("an"));
  log();
  bar().resignFirstResponder();
  EXPECT_TRUE(search.isActive());
  EXPECT_EQ(bar().text(), QStringLiteral("an"));
  EXPECT_EQ(log(), (Told{}));
}

TEST_F(UISearchControllerTest, TheKeyboardAloneBeginsNothing) {
  bar().searchTextField().becomeFirstResponder();
  EXPECT_FALSE(search.isActive());
  EXPECT_EQ(log(), (Told{}));
}

TEST_F(UISearchControllerTest, AnotherPressAsksForNothing) {
  bar().press();
  bar().resignFirstResponder();
  log();
  bar().press();
  EXPECT_EQ(log(), (Told{}));
}

TEST_F(UISearchControllerTest, EndsWhenTheUserCancels) {
  bar().press();
  bar().edit(QStringLiteral("an"));
  log();
  bar().cancel();
  EXPECT_FALSE(search.isActive());
  EXPECT_EQ(log(), (Told{"dismissed "}));
}

TEST_F(UISearchControllerTest, EndsWithAnEmptyBarThatHasNoKeyboard) {
  bar().press();
  bar().edit(QStringLiteral("an"));
  search.setActive(false);
  EXPECT_TRUE(bar().text().isEmpty());
  EXPECT_FALSE(bar().isFirstResponder());
  EXPECT_FALSE(bar().showsCancelButton());
  EXPECT_FALSE(activeAtDismissal);
}

TEST_F(UISearchControllerTest, TellsItsEndOnce) {
  search.setActive(true);
  log();
  search.setActive(false);
  search.setActive(false);
  EXPECT_EQ(log(), (Told{"dismissed "}));
}

TEST_F(UISearchControllerTest, WithoutHavingBegunThereIsNothingToEnd) {
  search.setActive(false);
  bar().cancel();
  EXPECT_EQ(log(), (Told{}));
}

TEST_F(UISearchControllerTest, TheProgramMayBeginIt) {
  search.setActive(true);
  EXPECT_EQ(log(), (Told{"update "}));
  EXPECT_TRUE(bar().showsCancelButton());
}

TEST_F(UISearchControllerTest, NobodyNeedsToListen) {
  search.searchResultsUpdater = nullptr;
  search.delegate = nullptr;
  bar().edit(QStringLiteral("a"));
  search.setActive(false);
  EXPECT_FALSE(search.isActive());
  EXPECT_EQ(log(), (Told{}));
}

}  // namespace
}  // namespace kindora
