// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/picker/KindoraFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// --- Setting up ---

TEST_F(KindoraTableViewControllerTest, DefinesThePresentationContext) {
  EXPECT_TRUE(screen->definesPresentationContext());
}

TEST_F(KindoraTableViewControllerTest, IsItsSearchsDelegateAndUpdater) {
  EXPECT_EQ(screen->searchController->delegate,
            static_cast<UISearchControllerDelegate*>(screen.get()));
  EXPECT_EQ(screen->searchController->searchResultsUpdater,
            static_cast<UISearchResultsUpdating*>(screen.get()));
}

TEST_F(KindoraTableViewControllerTest, TheSearchNeitherDimsNorHidesTheBar) {
  EXPECT_FALSE(screen->searchController->dimsBackgroundDuringPresentation);
  EXPECT_FALSE(screen->searchController->hidesNavigationBarDuringPresentation);
}

TEST_F(KindoraTableViewControllerTest, TheSearchBarStandsAboveTheTable) {
  EXPECT_EQ(screen->tableView()->tableHeaderView(), &bar());
  EXPECT_EQ(bar().searchBarStyle(), UISearchBarStyle::minimal);
  EXPECT_EQ(bar().backgroundColor(), (UIColor{1, 1, 1, 0.95}));
}

TEST_F(KindoraTableViewControllerTest, TheSearchBarIsAsWideAsTheTableAndOf44Points) {
  class Sized final : public Screen {
   public:
    explicit Sized(double width) : width_(width) {}
    void viewDidLoad() override {
      view()->reportFrame({{0, 0}, {width_, 480}});
      Screen::viewDidLoad();
    }

   private:
    double width_;
  };
  for (const double width : {320.0, 375.0}) {
    const auto sized = makeViewController<Sized>(width);
    sized->loadViewIfNeeded();
    EXPECT_EQ(sized->searchController->searchBar()->frame(), (CGRect{{0, 0}, {width, 44}}));
  }
}

TEST_F(KindoraTableViewControllerTest, AsksToSelectFriends) {
  EXPECT_EQ(title(), "Select Friends");
}

TEST_F(KindoraTableViewControllerTest, PromptsWithTheTitleOfTheChallenge) {
  EXPECT_EQ(screen->navigationItem()->prompt(), QStringLiteral("Passing on \"Cup o' Coffee\"..."));
}

TEST_F(KindoraTableViewControllerTest, PromptsWithNothingBetweenTheQuotesWithoutATitle) {
  challenge->title = std::nullopt;
  open();
  EXPECT_EQ(screen->navigationItem()->prompt(), QStringLiteral("Passing on \"\"..."));
}

TEST_F(KindoraTableViewControllerTest, SendIsDisabledAtTheStart) {
  EXPECT_EQ(send().title(), QStringLiteral("Send"));
  EXPECT_FALSE(send().isEnabled());
}

TEST_F(KindoraTableViewControllerTest, LoadsWithoutAChallenge) {
  const auto orphan = mainStoryboard().instantiateViewController("KindoraTableViewController");
  orphan->loadViewIfNeeded();
  EXPECT_TRUE(orphan->isViewLoaded());
}

TEST_F(KindoraTableViewControllerTest, NobodyIsChosenAtTheStart) {
  EXPECT_THAT(screen->chosenFriends, IsEmpty());
  EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(KindoraTableViewControllerTest, ListsACopyOfAllFriends) {
  EXPECT_THAT(screen->displayFriends, ElementsAre(anna, diana, joe));
  screen->displayFriends.clear();
  EXPECT_EQ(friends().size(), 3u);
}

// --- Rows ---

TEST_F(KindoraTableViewControllerTest, HasTwoSectionsOfWhichTheSecondHasOneRow) {
  EXPECT_EQ(screen->numberOfSectionsInTableView(), 2);
  EXPECT_EQ(screen->tableViewNumberOfRowsInSection(0), 3);
  EXPECT_EQ(screen->tableViewNumberOfRowsInSection(1), 1);
}

TEST_F(KindoraTableViewControllerTest, WithoutFriendsThereIsStillSomebodyToInvite) {
  friends().clear();
  open();
  EXPECT_EQ(screen->tableViewNumberOfRowsInSection(0), 0);
  EXPECT_EQ(screen->tableViewNumberOfRowsInSection(1), 1);
  EXPECT_EQ(screen->tableView()->rowCount(), 1);
}

TEST_F(KindoraTableViewControllerTest, ShowsAFriendARow) {
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana", "Joe"));
  const auto cell = std::dynamic_pointer_cast<FriendTableViewCell>(
      screen->tableView()->cellForRowAtIndexPath({0, 1}));
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(cell->reuseIdentifier(), "friendCell");
  EXPECT_EQ(cell->friendImageView.lock()->image(), diana->picture);
}

TEST_F(KindoraTableViewControllerTest, TheLastRowInvitesAFriend) {
  const PlaceholderTableViewCell& cell = inviteRow();
  const auto label = cell.messageLabel.lock();
  EXPECT_EQ(cell.reuseIdentifier(), "placeholderCell");
  EXPECT_EQ(label->text(), "Invite a Friend...");
  EXPECT_EQ(label->font(), (UIFont{"AvenirNext-Medium", 22}));
  EXPECT_EQ(label->textColor(), appColor());
  EXPECT_EQ(cell.selectionStyle(), UITableViewCellSelectionStyle::none);
  EXPECT_EQ(cell.accessoryType(), UITableViewCellAccessoryType::none);
}

TEST_F(KindoraTableViewControllerTest, KnowsTheFriendOfARow) {
  EXPECT_EQ(screen->userForRow(0), anna);
  EXPECT_EQ(screen->userForRow(2), joe);
}

TEST_F(KindoraTableViewControllerTest, ARowOutsideTheListStops) {
  EXPECT_DEATH(static_cast<void>(screen->userForRow(3)),
               "fatal error: there is no friend in row 3");
  EXPECT_DEATH(static_cast<void>(screen->userForRow(-1)),
               "fatal error: there is no friend in row -1");
}

// --- Choosing ---

TEST_F(KindoraTableViewControllerTest, APressTicksAFriend) {
  press(1);
  EXPECT_THAT(screen->chosenFriends, ElementsAre(diana));
  EXPECT_THAT(ticked(), ElementsAre("Diana"));
}

TEST_F(KindoraTableViewControllerTest, APressedRowIsDeselected) {
  press(1);
  EXPECT_EQ(screen->tableView()->indexPathForSelectedRow(), std::nullopt);
}

TEST_F(KindoraTableViewControllerTest, ASecondPressUnticks) {
  press(1);
  press(1);
  EXPECT_THAT(screen->chosenFriends, IsEmpty());
  EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(KindoraTableViewControllerTest, CountsInTheTitle) {
  press(0);
  EXPECT_EQ(title(), "1 Friend Selected");
  press(1);
  EXPECT_EQ(title(), "2 Friends Selected");
  press(2);
  EXPECT_EQ(title(), "3 Friends Selected");
  press(0);
  EXPECT_EQ(title(), "2 Friends Selected");
}

TEST_F(KindoraTableViewControllerTest, TickingAndUntickingBringsTheTitleBack) {
  press(0);
  press(0);
  EXPECT_EQ(title(), "Select Friends");
  EXPECT_FALSE(send().isEnabled());
}

TEST_F(KindoraTableViewControllerTest, SendIsEnabledWhileSomebodyIsChosen) {
  press(0);
  EXPECT_TRUE(send().isEnabled());
  press(1);
  press(0);
  EXPECT_TRUE(send().isEnabled());
  press(1);
  EXPECT_FALSE(send().isEnabled());
}

TEST_F(KindoraTableViewControllerTest, TwoFriendsOfOneNameAreTwo) {
  friends() = {user("Anna"), user("Anna")};
  open();
  press(0);
  EXPECT_EQ(title(), "1 Friend Selected");
  EXPECT_THAT(ticked(), ElementsAre("Anna"));
  press(1);
  EXPECT_EQ(title(), "2 Friends Selected");
}

TEST_F(KindoraTableViewControllerTest, AFriendListedTwiceIsOne) {
  friends() = {anna, diana, anna};
  open();
  press(0);
  EXPECT_EQ(title(), "1 Friend Selected");
  EXPECT_THAT(ticked(), ElementsAre("Anna", "Anna"));
  press(2);
  EXPECT_EQ(title(), "Select Friends");
  EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(KindoraTableViewControllerTest, LeavingDropsTheTicks) {
  press(0);
  navigation().popViewController(false);
  open();
  EXPECT_EQ(title(), "Select Friends");
  EXPECT_THAT(ticked(), IsEmpty());
  EXPECT_FALSE(challenge->passedOn);
}

// --- Searching ---

TEST_F(KindoraTableViewControllerTest, AnActiveSearchWithoutTextShowsNobody) {
  bar().searchTextField().becomeFirstResponder();
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana", "Joe"));
  bar().press();
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(inviteRow().messageLabel.lock()->text(), "Invite a Friend...");
}

TEST_F(KindoraTableViewControllerTest, ATextThatWasDeletedShowsNobody) {
  search("an");
  search("");
  EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(KindoraTableViewControllerTest, FindsPartsOfNamesWhateverTheCase) {
  search("AN");
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana"));
}

TEST_F(KindoraTableViewControllerTest, BlanksCountInASearch) {
  friends() = {user("Joe in the Red Shirt"), user("Theodora")};
  open();
  search(" the ");
  EXPECT_THAT(shown(), ElementsAre("Joe in the Red Shirt"));
}

TEST_F(KindoraTableViewControllerTest, FindsLettersBeyondAsciiWhateverTheCase) {
  friends() = {user("\u00e9mile"), user("Emile")};
  open();
  search("\u00c9");
  EXPECT_THAT(shown(), ElementsAre("\u00e9mile"));
}

TEST_F(KindoraTableViewControllerTest, FindsNobodyByAStrangeName) {
  search("zzz");
  EXPECT_THAT(shown(), IsEmpty());
  EXPECT_EQ(screen->tableView()->rowCount(), 1);
}

TEST_F(KindoraTableViewControllerTest, ResultsStandInTheOrderOfTheFriends) {
  friends() = {user("Zan"), user("Diana"), user("Anna")};
  open();
  search("an");
  EXPECT_THAT(shown(), ElementsAre("Zan", "Diana", "Anna"));
}

TEST_F(KindoraTableViewControllerTest, FindsAFriendWhoWasInvitedMeanwhile) {
  Friends::sharedInstance().addFriend(user("Susanna"));
  search("an");
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana", "Susanna"));
}

TEST_F(KindoraTableViewControllerTest, ASearchLeavesTheFriendsThemselvesAlone) {
  search("zzz");
  EXPECT_EQ(friends().size(), 3u);
}

TEST_F(KindoraTableViewControllerTest, TicksSurviveASearchThatHidesThem) {
  press(2);
  search("an");
  EXPECT_THAT(ticked(), IsEmpty());
  EXPECT_EQ(title(), "1 Friend Selected");
  EXPECT_TRUE(send().isEnabled());
  bar().cancel();
  EXPECT_THAT(ticked(), ElementsAre("Joe"));
}

TEST_F(KindoraTableViewControllerTest, ATickShowsOnWhomASearchFinds) {
  press(1);
  search("an");
  EXPECT_THAT(ticked(), ElementsAre("Diana"));
}

TEST_F(KindoraTableViewControllerTest, ACellThatIsReusedBearsNoForeignTick) {
  press(0);
  search("joe");
  EXPECT_THAT(shown(), ElementsAre("Joe"));
  EXPECT_THAT(ticked(), IsEmpty());
}

TEST_F(KindoraTableViewControllerTest, OneMayTickWhileSearching) {
  search("an");
  press(1);
  EXPECT_THAT(screen->chosenFriends, ElementsAre(diana));
  EXPECT_TRUE(screen->searchController->isActive());
  EXPECT_EQ(title(), "1 Friend Selected");
  bar().cancel();
  EXPECT_THAT(ticked(), ElementsAre("Diana"));
}

TEST_F(KindoraTableViewControllerTest, TheEndOfASearchListsEverybodyAgain) {
  search("an");
  bar().cancel();
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana", "Joe"));
}

TEST_F(KindoraTableViewControllerTest, TheEndOfASearchListsWhoWasInvitedMeanwhile) {
  search("an");
  Friends::sharedInstance().addFriend(user("Sarah"));
  bar().cancel();
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana", "Joe", "Sarah"));
}

// --- Coming back ---

TEST_F(KindoraTableViewControllerTest, ComingBackListsWhoWasInvitedLastAndKeepsTicks) {
  press(1);
  navigation().pushViewController(makeViewController<UIViewController>(), false);
  Friends::sharedInstance().addFriend(user("Aaron"));
  navigation().popViewController(false);
  EXPECT_THAT(shown(), ElementsAre("Anna", "Diana", "Joe", "Aaron"));
  EXPECT_THAT(ticked(), ElementsAre("Diana"));
  EXPECT_EQ(title(), "1 Friend Selected");
}

TEST_F(KindoraTableViewControllerTest, ComingBackLeavesAnActiveSearchAlone) {
  search("joe");
  navigation().pushViewController(makeViewController<UIViewController>(), false);
  navigation().popViewController(false);
  EXPECT_THAT(shown(), ElementsAre("Joe"));
}

// --- Inviting ---

// A picker whose storyboard has a screen to invite friends.
class KindoraInvitationTest : public KindoraTableViewControllerTest {
 protected:
  class Inviting final : public Screen {
   public:
    std::vector<std::string> told;
    void didDismissSearchController(UISearchController& controller) override {
      told.emplace_back("search dismissed");
      Screen::didDismissSearchController(controller);
    }
    void prepareForSegue(const UIStoryboardSegue& segue, const std::any& /*sender*/) override {
      told.push_back(segue.identifier);
    }
  };

  KindoraInvitationTest() {
    picker = std::dynamic_pointer_cast<Inviting>(storyboard.instantiateViewController("picker"));
    navigation().pushViewController(picker, false);
  }
  void pressInvite() { picker->tableView()->select(picker->tableView()->rowCount() - 1); }

  const UIStoryboard storyboard{
      {{.identifier = "picker",
        .make = [] { return makeViewController<Inviting>(); },
        .segues = {{"inviteFriend", UIStoryboardSegueKind::show, "invite"}}},
       {.identifier = "invite", .make = [] { return makeViewController<UIViewController>(); }}}};
  std::shared_ptr<Inviting> picker;
};

TEST_F(KindoraInvitationTest, TheLastRowLeadsToTheInvitation) {
  pressInvite();
  EXPECT_THAT(picker->told, ElementsAre("inviteFriend"));
  EXPECT_NE(navigation().topViewController(), picker);
}

TEST_F(KindoraInvitationTest, TheSearchEndsFirst) {
  picker->searchController->searchBar()->edit(QStringLiteral("zzz"));
  pressInvite();
  EXPECT_THAT(picker->told, ElementsAre("search dismissed", "inviteFriend"));
  EXPECT_FALSE(picker->searchController->isActive());
}

TEST_F(KindoraInvitationTest, NobodyIsChosenByIt) {
  pressInvite();
  EXPECT_THAT(picker->chosenFriends, IsEmpty());
  EXPECT_EQ(picker->title(), QStringLiteral("Select Friends"));
}

}  // namespace
}  // namespace kindora
