// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/alerts/AlertsViewController.h"

#include <gmock/gmock.h>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/legacy/QavAlertViewCoordinator.h"
#include "alerts/qt/CurrentViewController.h"
#include "alerts/qt/QavAlertController.h"
#include "platform/fakes/FakeViewServices.h"
#include "tests/gallery/GalleryFixture.h"
#include "toolkit/controllers/UIApplication.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using Titles = std::vector<std::string>;

class AlertsViewControllerTest : public GalleryFixture {
 protected:
  // Chooses the row of that name, and lets that much time pass.
  void choose(const std::string& title, double seconds = 1) {
    for (int section = 0; section < screen.numberOfSectionsInTableView(); ++section) {
      const auto& demos = screen.sections().at(static_cast<std::size_t>(section)).demos;
      for (std::size_t row = 0; row < demos.size(); ++row) {
        if (demos[row].title != title) continue;
        screen.tableViewDidSelectRowAtIndexPath({section, static_cast<int>(row)});
        time.advance(seconds);
        return;
      }
    }
    FAIL() << "no row is called " << title;
  }
  [[nodiscard]] std::string outcome() const { return screen.outcome().toStdString(); }

  // Alerts on a card.
  static QavAlertControllerRef card() {
    return std::dynamic_pointer_cast<QavAlertController>(qav_currentViewController());
  }
  static Titles titlesOfActions() {
    Titles titles;
    for (const auto& action : card()->actions()) titles.push_back(action->title().value_or(""));
    return titles;
  }
  void answer(std::size_t index) {
    const auto alert = card();
    alert->alertControllerViewDidPerformAction(*alert->alert(), alert->actions().at(index));
    time.advance(1);
  }
  static void type(UITextField& field, std::string_view text) {
    for (const char c : text) field.replaceRange(field.selectedRange(), std::string(1, c));
  }

  // Legacy alerts.
  static std::shared_ptr<QavAlertView> legacy() {
    return QavAlertView::transitionCoordinator().visibleAlert();
  }
  void press(int buttonIndex) {
    legacy()->alertContentViewDidTapButtonAtIndex(*legacy()->alertContentView(), buttonIndex);
    time.advance(1);
  }

  const FakeViewServices viewFakes = installFakeViewServices();
  AlertsViewController& screen = open<AlertsViewController>(kAlertsRow);
};

TEST_F(AlertsViewControllerTest, BeginsWithoutAnAlertAndSaysSo) {
  EXPECT_EQ(card(), nullptr);
  EXPECT_EQ(legacy(), nullptr);
  EXPECT_EQ(outcome(), "Choose an alert.");
}

TEST_F(AlertsViewControllerTest, EveryRowHasALineAboutIt) {
  for (const AlertDemoSection& section : screen.sections()) {
    EXPECT_FALSE(section.title.empty());
    for (const AlertDemo& demo : section.demos) EXPECT_FALSE(demo.detail.empty()) << demo.title;
  }
}

// --- Alerts on a card ---

TEST_F(AlertsViewControllerTest, ShowsOneActionAndTellsItsChoice) {
  choose("One action");
  ASSERT_NE(card(), nullptr);
  EXPECT_THAT(titlesOfActions(), ElementsAre("OK"));
  answer(0);
  EXPECT_EQ(card(), nullptr);
  EXPECT_EQ(outcome(), "You chose OK.");
}

TEST_F(AlertsViewControllerTest, ShowsTwoActionsSideBySide) {
  choose("Two actions");
  EXPECT_THAT(titlesOfActions(), ElementsAre("Keep", "Delete"));
  EXPECT_EQ(card()->alert()->actionsCollectionViewHeight(), 44);
  answer(1);
  EXPECT_EQ(outcome(), "You chose Delete.");
}

TEST_F(AlertsViewControllerTest, StacksThreeAndFiveActions) {
  choose("Three actions");
  EXPECT_EQ(card()->alert()->actionsCollectionViewHeight(), 132);
  answer(2);
  choose("Five actions");
  EXPECT_EQ(card()->alert()->actionsCollectionViewHeight(), 220);
  answer(4);
  EXPECT_EQ(outcome(), "You chose Nobody.");
}

TEST_F(AlertsViewControllerTest, StacksTwoActionsWhereItIsAskedFor) {
  choose("Two actions, stacked");
  EXPECT_EQ(card()->actions().size(), 2U);
  EXPECT_EQ(card()->alert()->actionsCollectionViewHeight(), 88);
}

TEST_F(AlertsViewControllerTest, PutsFourActionsIntoOneRow) {
  choose("Four actions in a row");
  EXPECT_EQ(card()->actions().size(), 4U);
  EXPECT_EQ(card()->alert()->actionsCollectionViewHeight(), 44);
}

TEST_F(AlertsViewControllerTest, AButtonWaitsForAName) {
  choose("Text fields");
  const auto fields = card()->textFields();
  ASSERT_EQ(fields.size(), 2U);
  EXPECT_TRUE(fields[1]->isSecureTextEntry());
  const auto ok = card()->actions()[1];
  EXPECT_FALSE(ok->isEnabled());
  answer(1);
  ASSERT_NE(card(), nullptr);
  type(*fields[0], "Ada");
  EXPECT_TRUE(ok->isEnabled());
  fields[0]->replaceRange({0, 3}, "");
  EXPECT_FALSE(ok->isEnabled());
  type(*fields[0], "Eve");
  type(*fields[1], "secret");
  answer(1);
  EXPECT_EQ(outcome(), "You signed in as Eve with a password.");
}

TEST_F(AlertsViewControllerTest, ShowsContentOfItsOwn) {
  choose("Content of its own");
  EXPECT_EQ(card()->contentView()->subviews().size(), 1U);
  EXPECT_EQ(card()->contentView()->intrinsicContentSize(), (CGSize{270, 100}));
}

TEST_F(AlertsViewControllerTest, ADisabledActionDoesNothing) {
  choose("Disabled and destructive");
  EXPECT_EQ(card()->actions()[1]->style(), QavAlertActionStyle::destructive);
  answer(0);
  ASSERT_NE(card(), nullptr);
  answer(1);
  EXPECT_EQ(outcome(), "You chose Delete.");
}

TEST_F(AlertsViewControllerTest, TheVetoKeepsTheAlertAndCounts) {
  choose("Veto");
  answer(0);
  answer(0);
  ASSERT_NE(card(), nullptr);
  EXPECT_EQ(card()->message(), "Asked 2 times. Take the time you need.");
  EXPECT_EQ(outcome(), "Choose an alert.");
  answer(1);
  EXPECT_EQ(card(), nullptr);
  EXPECT_EQ(outcome(), "You chose Ready.");
}

TEST_F(AlertsViewControllerTest, TheLongTextIsHigherThanAnyWindow) {
  choose("Long text");
  EXPECT_GT(card()->alert()->scrollView()->intrinsicContentSize().height, 932);
}

TEST_F(AlertsViewControllerTest, ShowsAttributedTexts) {
  choose("Attributed texts");
  EXPECT_TRUE(card()->attributedTitle()->hasForegroundColor());
  EXPECT_TRUE(card()->attributedMessage()->hasFont());
  EXPECT_TRUE(card()->actions()[0]->attributedTitle().has_value());
  answer(0);
  EXPECT_EQ(outcome(), "You chose Thank you very much.");
}

TEST_F(AlertsViewControllerTest, AnAlertMayOutliveThePage) {
  const std::weak_ptr<UIViewController> page = screen.weak_from_this();
  choose("One action");
  navigation->popViewController(false);
  time.settle();
  ASSERT_TRUE(page.expired());
  ASSERT_NE(card(), nullptr);
  answer(0);
  EXPECT_EQ(card(), nullptr);
  EXPECT_EQ(navigation->viewControllers().size(), 1U);
}

// --- Legacy alerts ---

TEST_F(AlertsViewControllerTest, ShowsTwoLegacyButtons) {
  choose("Legacy, two buttons");
  ASSERT_NE(legacy(), nullptr);
  EXPECT_EQ(legacy()->numberOfButtons(), 2);
  press(1);
  EXPECT_EQ(legacy(), nullptr);
  EXPECT_EQ(outcome(), "You chose Send.");
}

TEST_F(AlertsViewControllerTest, GoingBackDuringTheOpeningCancelsOnce) {
  int told = 0;
  QObject::connect(&screen, &AlertsViewController::outcomeChanged, [&told] { ++told; });
  choose("Legacy, two buttons", 0.1);
  ASSERT_EQ(legacy(), nullptr);
  UIApplication::sharedApplication()->goBack();
  UIApplication::sharedApplication()->goBack();
  time.advance(2);
  EXPECT_EQ(outcome(), "You chose Cancel.");
  EXPECT_EQ(told, 1);
  EXPECT_EQ(navigation->topViewController().get(), &screen);
}

TEST_F(AlertsViewControllerTest, AControllerShowsFiveLegacyButtons) {
  choose("Legacy, five buttons");
  ASSERT_NE(legacy(), nullptr);
  EXPECT_EQ(legacy()->numberOfButtons(), 5);
  press(2);
  EXPECT_EQ(outcome(), "You chose Good.");
}

TEST_F(AlertsViewControllerTest, TheLoginTellsWhoItWas) {
  choose("Legacy, login fields");
  EXPECT_EQ(legacy()->alertViewStyle(), QavAlertViewStyle::loginAndPasswordInput);
  type(*legacy()->textFieldAtIndex(0), "ada");
  press(1);
  EXPECT_EQ(outcome(), "You logged in as ada without a password.");
  choose("Legacy, login fields");
  press(0);
  EXPECT_EQ(outcome(), "You chose Cancel.");
}

TEST_F(AlertsViewControllerTest, TheQueueShowsTheLastAndGivesTheOthersBack) {
  choose("Three in a queue");
  time.advance(2);
  for (const std::string title : {"Third", "Second", "First"}) {
    ASSERT_NE(legacy(), nullptr) << title;
    EXPECT_EQ(legacy()->title(), title);
    press(0);
    EXPECT_EQ(outcome(), title + " has gone.");
  }
  EXPECT_EQ(legacy(), nullptr);
}

TEST_F(AlertsViewControllerTest, OneAlertTakesAnothersPlaceForAWhile) {
  choose("One over another");
  press(1);
  EXPECT_EQ(legacy()->title(), "Above");
  press(0);
  EXPECT_EQ(outcome(), "You chose Back.");
  EXPECT_EQ(legacy()->title(), "Below");
  press(0);
  EXPECT_EQ(outcome(), "You chose Close.");
}

// --- The page's own ---

TEST_F(AlertsViewControllerTest, AsksThePageForItsAlert) {
  int asked = 0;
  QObject::connect(&screen, &AlertsViewController::declaredAlertWanted, [&asked] { ++asked; });
  choose("Declared alert");
  EXPECT_EQ(asked, 1);
}

TEST_F(AlertsViewControllerTest, TellsAnOutcomeOnce) {
  int changes = 0;
  QObject::connect(&screen, &AlertsViewController::outcomeChanged, [&changes] { ++changes; });
  screen.tell(QStringLiteral("You chose Call."));
  screen.tell(QStringLiteral("You chose Call."));
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
