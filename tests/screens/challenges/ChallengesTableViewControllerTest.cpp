// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/challenges/ChallengesFixture.h"

namespace kindora {
namespace {

// --- What it shows ---

TEST_F(ChallengesTableViewControllerTest, HasTwoSections) {
  EXPECT_EQ(list().numberOfSectionsInTableView(), 2);
}

TEST_F(ChallengesTableViewControllerTest, NewChallengesAreSection0AndThoseInProgressSection1) {
  EXPECT_EQ(ChallengesTableViewController::NEW_CHALLENGE_INDEX, 0);
  EXPECT_EQ(ChallengesTableViewController::IN_PROGRESS_INDEX, 1);
  EXPECT_EQ(list().getDataForSection(0), store().newChallenges);
  EXPECT_EQ(list().getDataForSection(1), store().inProgressChallenges);
}

TEST_F(ChallengesTableViewControllerTest, ShowsTheChallengesOfTheStart) {
  EXPECT_EQ(shown(), (Lines{"# New Challenges", "Bob the Astronaut | -", "Joe in the Red Shirt | -",
                            "Sarah the Sloth | -", "# In Progress",
                            "Catch Your Breath | From: Josh the Whale",
                            "Compliment Challenge | From: Your Boss"}));
}

TEST_F(ChallengesTableViewControllerTest, CountsTheRowsOfASection) {
  EXPECT_EQ(list().tableViewNumberOfRowsInSection(0), 3);
  EXPECT_EQ(list().tableViewNumberOfRowsInSection(1), 2);
}

TEST_F(ChallengesTableViewControllerTest, CountsOneRowInAnEmptySection) {
  empty(store().newChallenges);
  EXPECT_EQ(list().tableViewNumberOfRowsInSection(0), 1);
  empty(store().inProgressChallenges);
  EXPECT_EQ(list().tableViewNumberOfRowsInSection(1), 1);
}

TEST_F(ChallengesTableViewControllerTest, TitlesTheSections) {
  EXPECT_EQ(list().tableViewTitleForHeaderInSection(0), "New Challenges");
  EXPECT_EQ(list().tableViewTitleForHeaderInSection(1), "In Progress");
}

TEST_F(ChallengesTableViewControllerTest, HeadersAreCentredInTheAppsColourAndFont) {
  for (const int section : {0, 1}) {
    UITableViewHeaderFooterView header;
    list().tableViewWillDisplayHeaderViewForSection(header, section);
    const auto label = header.textLabel.lock();
    EXPECT_EQ(label->textColor(), appColor());
    EXPECT_EQ(label->font(), (UIFont{"AvenirNext-Medium", 16}));
    EXPECT_EQ(label->textAlignment(), NSTextAlignment::center);
  }
}

TEST_F(ChallengesTableViewControllerTest, TheTableDressesItsHeaders) {
  const TableReader reader(table());
  EXPECT_EQ(reader.header(0)->textLabel.lock()->textColor(), appColor());
  EXPECT_EQ(reader.header(4)->textLabel.lock()->textColor(), appColor());
}

TEST_F(ChallengesTableViewControllerTest, AnEmptyNewSectionSaysSo) {
  empty(store().newChallenges);
  EXPECT_EQ(shown().at(1), "No New Challenges");
  EXPECT_EQ(cellAt<PlaceholderTableViewCell>({0, 0})->reuseIdentifier(), "placeholderCell");
}

TEST_F(ChallengesTableViewControllerTest, AnEmptySectionOfThoseInProgressSaysSo) {
  empty(store().inProgressChallenges);
  EXPECT_EQ(shown().back(), "No Challenges in Progress");
  EXPECT_EQ(cellAt<PlaceholderTableViewCell>({1, 0})->reuseIdentifier(), "placeholderCell");
}

TEST_F(ChallengesTableViewControllerTest, ChallengesHaveCellsOfTheirOwnKind) {
  EXPECT_EQ(cellAt<ChallengeTableViewCell>({0, 0})->reuseIdentifier(), "challengeCell");
  EXPECT_EQ(cellAt<ChallengeTableViewCell>({1, 1})->reuseIdentifier(), "challengeCell");
}

TEST_F(ChallengesTableViewControllerTest, ANewRowShowsNothingButTheSender) {
  const ChallengeRef challenge = store().newChallenges[1];
  const auto cell = cellAt<ChallengeTableViewCell>({0, 1});
  EXPECT_EQ(cell->profileImage(), challenge->sender->picture);
  EXPECT_EQ(cell->profileImageView.lock()->image(), challenge->sender->picture);
  EXPECT_EQ(cell->challengeLabel.lock()->text(), "Joe in the Red Shirt");
  EXPECT_EQ(cell->senderLabel.lock()->text(), std::nullopt);
}

TEST_F(ChallengesTableViewControllerTest, ANewRowWithoutSenderShowsNothing) {
  store().newChallenges[0]->sender = nullptr;
  const auto cell = cellAt<ChallengeTableViewCell>({0, 0});
  EXPECT_EQ(cell->profileImage(), nullptr);
  EXPECT_EQ(cell->challengeLabel.lock()->text(), std::nullopt);
  EXPECT_EQ(cell->senderLabel.lock()->text(), std::nullopt);
}

TEST_F(ChallengesTableViewControllerTest, ARowInProgressShowsChallengeAndSender) {
  const ChallengeRef challenge = store().inProgressChallenges[0];
  const auto cell = cellAt<ChallengeTableViewCell>({1, 0});
  EXPECT_EQ(cell->profileImage(), challenge->challengeImage);
  EXPECT_NE(cell->profileImage(), challenge->sender->picture);
  EXPECT_EQ(cell->challengeLabel.lock()->text(), "Catch Your Breath");
  EXPECT_EQ(cell->senderLabel.lock()->text(), "From: Josh the Whale");
}

TEST_F(ChallengesTableViewControllerTest, ARowInProgressWithoutSenderHasNoSmallText) {
  store().inProgressChallenges[0]->sender = nullptr;
  const auto cell = cellAt<ChallengeTableViewCell>({1, 0});
  EXPECT_EQ(cell->challengeLabel.lock()->text(), "Catch Your Breath");
  EXPECT_EQ(cell->senderLabel.lock()->text(), std::nullopt);
}

TEST_F(ChallengesTableViewControllerTest, ARowInProgressWithoutTitleHasNoMainText) {
  store().inProgressChallenges[0]->title = std::nullopt;
  EXPECT_EQ(cellAt<ChallengeTableViewCell>({1, 0})->challengeLabel.lock()->text(), std::nullopt);
}

TEST_F(ChallengesTableViewControllerTest, AReusedCellKeepsNothingOfItsFormerRow) {
  store().inProgressChallenges[0]->sender = nullptr;
  list().refreshDataWithReload(true, false);
  EXPECT_EQ(shown().at(5), "Catch Your Breath | -");
}

TEST_F(ChallengesTableViewControllerTest, RowsThatDoSomethingShowThatTheyArePressed) {
  EXPECT_TRUE(list().tableViewShouldHighlightRowAtIndexPath({0, 0}));
  EXPECT_TRUE(list().tableViewShouldHighlightRowAtIndexPath({1, 0}));
  empty(store().newChallenges);
  EXPECT_FALSE(list().tableViewShouldHighlightRowAtIndexPath({0, 0}));
}

// --- What stops it ---

TEST_F(ChallengesTableViewControllerTest, ARowBeyondTheDataStops) {
  EXPECT_DEATH(static_cast<void>(list().tableViewCellForRowAtIndexPath({0, 3})),
               "fatal error: invalid row");
  EXPECT_DEATH(static_cast<void>(list().tableViewCellForRowAtIndexPath({1, 2})),
               "fatal error: invalid row");
}

TEST_F(ChallengesTableViewControllerTest, ANegativeRowStops) {
  EXPECT_DEATH(static_cast<void>(list().tableViewCellForRowAtIndexPath({0, -1})),
               "fatal error: invalid row");
}

struct SectionOperation {
  const char* name;
  std::function<void(ChallengesTableViewController&, int section)> run;
};

class ChallengesTableViewControllerSectionTest
    : public ChallengesTableViewControllerTest,
      public ::testing::WithParamInterface<SectionOperation> {};

TEST_P(ChallengesTableViewControllerSectionTest, ASectionAfterTheLastStops) {
  EXPECT_DEATH(GetParam().run(list(), 2), "fatal error: invalid section");
}

TEST_P(ChallengesTableViewControllerSectionTest, ANegativeSectionStops) {
  EXPECT_DEATH(GetParam().run(list(), -1), "fatal error: invalid section");
}

using List = ChallengesTableViewController;

INSTANTIATE_TEST_SUITE_P(
    AllOperations, ChallengesTableViewControllerSectionTest,
    ::testing::Values(
        SectionOperation{"Data", [](List& l, int s) { static_cast<void>(l.getDataForSection(s)); }},
        SectionOperation{"NumberOfRows",
                         [](List& l, int s) { l.tableViewNumberOfRowsInSection(s); }},
        SectionOperation{"Title", [](List& l, int s) { l.tableViewTitleForHeaderInSection(s); }},
        SectionOperation{"Header",
                         [](List& l, int s) {
                           UITableViewHeaderFooterView header;
                           l.tableViewWillDisplayHeaderViewForSection(header, s);
                         }},
        SectionOperation{"Cell",
                         [](List& l, int s) {
                           l.tableViewCellForRowAtIndexPath({s, 0});
                         }},
        SectionOperation{"Selection",
                         [](List& l, int s) {
                           l.tableViewDidSelectRowAtIndexPath({s, 0});
                         }},
        SectionOperation{"CanEdit",
                         [](List& l, int s) {
                           l.tableViewCanEditRowAtIndexPath({s, 0});
                         }},
        SectionOperation{"DeleteTitle",
                         [](List& l, int s) {
                           l.tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath({s, 0});
                         }},
        SectionOperation{"CommitEditing",
                         [](List& l, int s) {
                           l.tableViewCommitEditingStyleForRowAtIndexPath(
                               UITableViewCellEditingStyle::deleteRow, {s, 0});
                         }}),
    [](const auto& instance) { return std::string(instance.param.name); });

// --- Snapshots ---

TEST_F(ChallengesTableViewControllerTest, AChangeOfTheStoreAloneDoesNotShow) {
  const Lines before = shown();
  store().newChallenges.clear();
  store().inProgressChallenges.clear();
  time.settle();
  EXPECT_EQ(shown(), before);
  EXPECT_EQ(list().newChallenges.size(), 3u);
  EXPECT_EQ(list().inProgress.size(), 2u);
}

TEST_F(ChallengesTableViewControllerTest, SharesItsRecordsWithTheStore) {
  EXPECT_EQ(list().newChallenges[2].get(), store().newChallenges[2].get());
  EXPECT_EQ(list().inProgress[1].get(), store().inProgressChallenges[1].get());
}

TEST_F(ChallengesTableViewControllerTest, RefreshingWithoutReloadOnlyCopies) {
  const Lines before = shown();
  store().newChallenges.pop_back();
  store().inProgressChallenges.pop_back();
  list().refreshDataWithReload(false, true);
  EXPECT_EQ(list().newChallenges, store().newChallenges);
  EXPECT_EQ(list().inProgress, store().inProgressChallenges);
  EXPECT_EQ(shown(), before);
}

TEST_F(ChallengesTableViewControllerTest, RefreshingAnimatedMovesTheRowsOfBothSections) {
  store().newChallenges.pop_back();
  store().inProgressChallenges.pop_back();
  list().refreshDataWithReload(true, true);
  EXPECT_TRUE(table().animatesChanges());
  EXPECT_EQ(shown(), (Lines{"# New Challenges", "Bob the Astronaut | -", "Joe in the Red Shirt | -",
                            "# In Progress", "Catch Your Breath | From: Josh the Whale"}));
}

TEST_F(ChallengesTableViewControllerTest, RefreshingWithoutAnimationShowsAllAtOnce) {
  list().refreshDataWithReload(true, true);
  store().newChallenges.pop_back();
  list().refreshDataWithReload(true, false);
  EXPECT_FALSE(table().animatesChanges());
  EXPECT_EQ(shown().at(3), "# In Progress");
}

// --- Life ---

TEST_F(ChallengesTableViewControllerTest, StandsOnWhite) {
  EXPECT_EQ(navigation().backgroundColor(), UIColor::whiteColor());
}

TEST_F(ChallengesTableViewControllerTest, LoadsItsRowsAnimated) {
  const auto fresh = makeViewController<ChallengesTableViewController>();
  fresh->loadViewIfNeeded();
  EXPECT_EQ(TableReader(*fresh->tableView()).count(), 7);
  EXPECT_TRUE(fresh->tableView()->animatesChanges());
}

TEST_F(ChallengesTableViewControllerTest, ShowsTheStoreWhenTheTabIsSelectedAgain) {
  tabs().pressTab(1);
  store().newChallenges.erase(store().newChallenges.begin());
  tabs().pressTab(0);
  EXPECT_EQ(shown().at(1), "Joe in the Red Shirt | -");
  EXPECT_FALSE(table().animatesChanges());
}

TEST_F(ChallengesTableViewControllerTest, ShowsTheStoreWhenAScreenAboveItIsLeft) {
  table().select(1);
  time.advance(0.5);
  store().newChallenges.erase(store().newChallenges.begin());
  navigation().popViewController(true);
  EXPECT_EQ(shown().at(1), "Joe in the Red Shirt | -");
}

TEST_F(ChallengesTableViewControllerTest, ShowsTheStoreWhenAScreenUnwinds) {
  table().select(5);
  time.advance(0.5);
  store().inProgressChallenges.clear();
  navigation().topViewController()->performSegueWithIdentifier("unwind");
  EXPECT_EQ(shown().back(), "No Challenges in Progress");
  time.advance(0.5);
  EXPECT_EQ(navigation().topViewController().get(), &list());
}

TEST_F(ChallengesTableViewControllerTest, ShowsTheStoreWhenAPageThatCoveredItIsDismissed) {
  const auto page = makeViewController<UIViewController>();
  list().presentViewController(page, true);
  time.advance(0.5);
  store().newChallenges.clear();
  list().dismissViewController(true);
  EXPECT_EQ(shown().at(1), "No New Challenges");
}

TEST_F(ChallengesTableViewControllerTest, UnwindingDoesNothingByItself) {
  const Lines before = shown();
  store().newChallenges.clear();
  list().unwind({"unwind", nullptr, nullptr});
  EXPECT_EQ(list().newChallenges.size(), 3u);
  EXPECT_EQ(shown(), before);
}

TEST_F(ChallengesTableViewControllerTest, IsFirstResponderWhileItShows) {
  EXPECT_TRUE(list().canBecomeFirstResponder());
  EXPECT_TRUE(list().isFirstResponder());
}

TEST_F(ChallengesTableViewControllerTest, ResignsAsSoonAsItLeaves) {
  table().select(1);
  EXPECT_FALSE(list().isFirstResponder());
}

TEST_F(ChallengesTableViewControllerTest, BecomesFirstResponderOnlyWhenItIsBack) {
  table().select(1);
  time.advance(0.5);
  navigation().popViewController(true);
  time.advance(0.3);
  EXPECT_FALSE(list().isFirstResponder());
  time.advance(0.1);
  EXPECT_TRUE(list().isFirstResponder());
}

// --- Selecting ---

TEST_F(ChallengesTableViewControllerTest, APlaceholderOpensNothing) {
  empty(store().newChallenges);
  empty(store().inProgressChallenges);
  table().select(1);
  table().select(3);
  time.advance(0.5);
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
}

TEST_F(ChallengesTableViewControllerTest, ANewRowOpensTheRevealScreenWithItsRecord) {
  const ChallengeRef challenge = store().newChallenges[1];
  table().select(2);
  EXPECT_EQ(top<NewChallengeDetailViewController>().challenge, challenge);
}

TEST_F(ChallengesTableViewControllerTest, ARowInProgressOpensItsScreenWithItsRecord) {
  const ChallengeRef challenge = store().inProgressChallenges[1];
  table().select(6);
  EXPECT_EQ(top<InProgressChallengeDetailViewController>().challenge, challenge);
}

TEST_F(ChallengesTableViewControllerTest, OpensTheRecordThatItShowsNotTheStoresPresentOne) {
  const ChallengeRef challenge = store().newChallenges[0];
  store().newChallenges.erase(store().newChallenges.begin());
  table().select(1);
  EXPECT_EQ(top<NewChallengeDetailViewController>().challenge, challenge);
}

TEST_F(ChallengesTableViewControllerTest, PreparesTheRevealScreen) {
  const auto screen = makeViewController<NewChallengeDetailViewController>();
  list().prepareForSegue({"showNewChallenge", nullptr, screen}, IndexPath{0, 2});
  EXPECT_EQ(screen->challenge, store().newChallenges[2]);
}

TEST_F(ChallengesTableViewControllerTest, PreparesTheScreenOfAChallengeInProgress) {
  const auto screen = makeViewController<InProgressChallengeDetailViewController>();
  list().prepareForSegue({"showInProgressChallenge", nullptr, screen}, IndexPath{1, 0});
  EXPECT_EQ(screen->challenge, store().inProgressChallenges[0]);
}

TEST_F(ChallengesTableViewControllerTest, HandsNothingOverOnAnotherSegue) {
  const auto screen = makeViewController<NewChallengeDetailViewController>();
  list().prepareForSegue({"another", nullptr, screen}, {});
  EXPECT_EQ(screen->challenge, nullptr);
}

// --- Swipe to reject ---

TEST_F(ChallengesTableViewControllerTest, OnlyRowsInProgressCanBeSwiped) {
  EXPECT_FALSE(list().tableViewCanEditRowAtIndexPath({0, 0}));
  EXPECT_TRUE(list().tableViewCanEditRowAtIndexPath({1, 0}));
  EXPECT_TRUE(list().tableViewCanEditRowAtIndexPath({1, 1}));
}

TEST_F(ChallengesTableViewControllerTest, PlaceholdersCannotBeSwiped) {
  empty(store().newChallenges);
  empty(store().inProgressChallenges);
  EXPECT_FALSE(list().tableViewCanEditRowAtIndexPath({0, 0}));
  EXPECT_FALSE(list().tableViewCanEditRowAtIndexPath({1, 0}));
}

TEST_F(ChallengesTableViewControllerTest, SwipingANewRowOpensNothing) {
  table().openRow(1);
  EXPECT_EQ(table().editingRow(), -1);
}

TEST_F(ChallengesTableViewControllerTest, TheSwipedRowOffersReject) {
  EXPECT_EQ(list().tableViewTitleForDeleteConfirmationButtonForRowAtIndexPath({1, 0}), "Reject");
  EXPECT_EQ(TableReader(table()).row(5).deleteTitle, "Reject");
}

TEST_F(ChallengesTableViewControllerTest, RejectingAsksFirst) {
  swipeFirstInProgress();
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "Reject \"Catch Your Breath\"?");
  EXPECT_EQ(alert()->message(), "Josh the Whale will be so disappointed.");
  EXPECT_EQ(alert()->actionTitles(),
            QStringList({QStringLiteral("Reject"), QStringLiteral("Never Mind")}));
  EXPECT_EQ(store().inProgressChallenges.size(), 2u);
}

TEST_F(ChallengesTableViewControllerTest, TheQuestionComesAnimated) {
  swipeFirstInProgress();
  EXPECT_EQ(alert()->presentationProgress(), 0);
  time.advance(0.3);
  EXPECT_EQ(alert()->presentationProgress(), 1);
}

TEST_F(ChallengesTableViewControllerTest, TheQuestionDoesWithoutASender) {
  store().inProgressChallenges[0]->sender = nullptr;
  swipeFirstInProgress();
  EXPECT_EQ(alert()->message(), "The sender will be so disappointed.");
}

TEST_F(ChallengesTableViewControllerTest, RejectTakesTheChallengeOut) {
  const ChallengeRef challenge = store().inProgressChallenges[0];
  swipeFirstInProgress();
  answer(kReject);
  EXPECT_EQ(store().inProgressChallenges.size(), 1u);
  EXPECT_NE(store().inProgressChallenges[0], challenge);
  EXPECT_EQ(shown().back(), "Compliment Challenge | From: Your Boss");
  EXPECT_EQ(shown().size(), 6u);
}

TEST_F(ChallengesTableViewControllerTest, RejectMovesTheRowsAnimated) {
  swipeFirstInProgress();
  answer(kReject);
  EXPECT_TRUE(table().animatesChanges());
  EXPECT_EQ(table().editingRow(), -1);
}

TEST_F(ChallengesTableViewControllerTest, RejectCopiesBothListsAndReloadsOnlyItsSection) {
  ASSERT_EQ(shown().size(), 7u);  // in sight, and so with a cell each
  swipeFirstInProgress();
  store().newChallenges.pop_back();
  answer(kReject);
  EXPECT_EQ(list().newChallenges.size(), 2u);
  EXPECT_EQ(shown(), (Lines{"# New Challenges", "Bob the Astronaut | -", "Joe in the Red Shirt | -",
                            "Sarah the Sloth | -", "# In Progress",
                            "Compliment Challenge | From: Your Boss"}));
}

TEST_F(ChallengesTableViewControllerTest, RejectingTheLastRowLeavesAPlaceholder) {
  store().inProgressChallenges.pop_back();
  list().refreshDataWithReload(true, false);
  swipeFirstInProgress();
  answer(kReject);
  EXPECT_TRUE(store().inProgressChallenges.empty());
  EXPECT_EQ(shown().size(), 6u);
  EXPECT_EQ(shown().back(), "No Challenges in Progress");
  table().openRow(5);
  EXPECT_EQ(table().editingRow(), -1);
}

TEST_F(ChallengesTableViewControllerTest, RejectMeansTheRecordAskedAboutNotItsPlace) {
  const ChallengeRef first = store().inProgressChallenges[0];
  const ChallengeRef second = store().inProgressChallenges[1];
  swipeFirstInProgress();
  store().inProgressChallenges = {second, first};
  answer(kReject);
  EXPECT_EQ(store().inProgressChallenges, std::vector{second});
}

TEST_F(ChallengesTableViewControllerTest, RejectingWhatHasLeftTheListMeanwhileRemovesNothing) {
  const ChallengeRef second = store().inProgressChallenges[1];
  swipeFirstInProgress();
  store().inProgressChallenges = {second};
  answer(kReject);
  EXPECT_EQ(store().inProgressChallenges, std::vector{second});
}

TEST_F(ChallengesTableViewControllerTest, NeverMindClosesTheSwipedRowAndChangesNothing) {
  const Lines before = shown();
  swipeFirstInProgress();
  ASSERT_EQ(table().editingRow(), 5);
  answer(kNeverMind);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(store().inProgressChallenges.size(), 2u);
  EXPECT_EQ(shown(), before);
}

TEST_F(ChallengesTableViewControllerTest, TheSwipedRowStaysOpenUnderTheQuestion) {
  swipeFirstInProgress();
  time.advance(1);
  EXPECT_EQ(table().editingRow(), 5);
}

TEST_F(ChallengesTableViewControllerTest, GoingBackFromTheQuestionMeansNeverMind) {
  swipeFirstInProgress();
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.3);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(store().inProgressChallenges.size(), 2u);
}

TEST_F(ChallengesTableViewControllerTest, AShakeClosesASwipedRow) {
  table().openRow(5);
  shake();
  EXPECT_EQ(table().editingRow(), -1);
  EXPECT_EQ(shown().size(), 8u);
}

}  // namespace
}  // namespace kindora
