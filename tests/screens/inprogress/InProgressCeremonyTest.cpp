// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/inprogress/InProgressCeremonyFixture.h"

namespace kindora {
namespace {

// --- Before ---

TEST_F(InProgressCeremonyTest, OffersToCompleteAndToDelete) {
  EXPECT_EQ(button().title(), "Complete");
  EXPECT_TRUE(button().isEnabled());
  ASSERT_NE(screen().navigationItem()->rightBarButtonItem(), nullptr);
  EXPECT_EQ(screen().navigationItem()->rightBarButtonItem()->title(), QStringLiteral("Delete"));
}

// --- The store ---

TEST_F(InProgressCeremonyTest, TheStoreKnowsAtOnce) {
  complete();
  EXPECT_THAT(store().inProgressChallenges, ::testing::Not(::testing::Contains(challenge)));
  ASSERT_FALSE(store().completedChallenges.empty());
  EXPECT_EQ(store().completedChallenges.front(), challenge);
}

TEST_F(InProgressCeremonyTest, TheStoreKnowsBeforeTheWayBackIsHidden) {
  bool known = false;
  QObject::connect(screen().navigationItem(), &UINavigationItem::changed, [&] {
    known =
        !store().completedChallenges.empty() && store().completedChallenges.front() == challenge;
  });
  complete();
  EXPECT_TRUE(known);
}

TEST_F(InProgressCeremonyTest, CountsEvenWhenTheScreenGoesAtOnce) {
  complete();
  navigation().popToRootViewController(false);
  time.advance(3);
  EXPECT_EQ(store().completedChallenges.front(), challenge);
  EXPECT_EQ(alert(), nullptr);
}

// --- The freeze ---

TEST_F(InProgressCeremonyTest, HidesTheWayBackAndTheDeleteButton) {
  int layouts = 0;
  QObject::connect(navigation().navigationBar(), &UINavigationBar::layoutRequested,
                   [&layouts] { ++layouts; });
  complete();
  EXPECT_TRUE(screen().navigationItem()->hidesBackButton());
  EXPECT_EQ(screen().navigationItem()->rightBarButtonItem(), nullptr);
  EXPECT_GE(layouts, 1);
}

TEST_F(InProgressCeremonyTest, EscapeDoesNotLeave) {
  completeUntil(0.3);
  delegate().window->goBack();
  until(1.8);
  delegate().window->goBack();
  until(1.9);
  EXPECT_TRUE(isOnTop());
}

TEST_F(InProgressCeremonyTest, NoTabIsPressed) {
  complete();
  EXPECT_FALSE(tabs().tabBar()->isUserInteractionEnabled());
  tabs().pressTab(1);
  EXPECT_EQ(tabs().selectedIndex(), 0);
  tabs().pressTab(0);
  EXPECT_TRUE(isOnTop());
}

TEST_F(InProgressCeremonyTest, TheBackGestureDoesNotBegin) {
  completeUntil(0.3);
  EXPECT_FALSE(navigation().beginBackGesture());
  navigation().endBackGesture(true);
  EXPECT_TRUE(isOnTop());
}

TEST_F(InProgressCeremonyTest, ABackGestureUnderWayDoesNotGoBack) {
  ASSERT_TRUE(navigation().beginBackGesture());
  navigation().moveBackGesture(0.4);
  complete();
  navigation().endBackGesture(true);
  until(1);
  EXPECT_TRUE(isOnTop());
}

TEST_F(InProgressCeremonyTest, StaysFrozenUntilTheAlertIsAnswered) {
  completeUntil(2.5);
  EXPECT_FALSE(tabs().tabBar()->isUserInteractionEnabled());
}

TEST_F(InProgressCeremonyTest, LaterEndsTheFreeze) {
  answer("Later");
  EXPECT_TRUE(tabs().tabBar()->isUserInteractionEnabled());
  tabs().pressTab(1);
  EXPECT_EQ(tabs().selectedIndex(), 1);
}

TEST_F(InProgressCeremonyTest, KindoraEndsTheFreeze) {
  answer("Kindora!");
  EXPECT_TRUE(tabs().tabBar()->isUserInteractionEnabled());
}

TEST_F(InProgressCeremonyTest, LeavingByTheProgramEndsTheFreeze) {
  completeUntil(0.3);
  navigation().popToRootViewController(true);
  time.advance(0.5);
  EXPECT_TRUE(tabs().tabBar()->isUserInteractionEnabled());
}

TEST_F(InProgressCeremonyTest, LeavingWithoutCompletingFreezesNothing) {
  tabs().tabBar()->setUserInteractionEnabled(false);  // somebody else's freeze
  navigation().popViewController(true);
  time.advance(0.5);
  EXPECT_FALSE(tabs().tabBar()->isUserInteractionEnabled());
}

// --- The button ---

TEST_F(InProgressCeremonyTest, TheButtonBecomesAFinishedMark) {
  complete();
  EXPECT_FALSE(button().isEnabled());
  EXPECT_EQ(button().alpha(), 0.5);
  EXPECT_EQ(button().title(), "");
  EXPECT_EQ(button().imageView().contentMode(), UIViewContentMode::scaleAspectFit);
  const UIImageRef image = button().imageView().image();
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->renderingMode(), UIImageRenderingMode::alwaysTemplate);
  EXPECT_EQ(image->size(), fakes.bundle->imageNamed("checkmark")->size());
}

TEST_F(InProgressCeremonyTest, TheButtonHasChangedBeforeAnythingMoves) {
  complete();
  EXPECT_EQ(button().presentation().alpha, 0.5);
}

TEST_F(InProgressCeremonyTest, WithoutACheckmarkPictureTheButtonIsEmpty) {
  fakes.bundle->setMissing("checkmark");
  complete();
  EXPECT_EQ(button().imageView().image(), nullptr);
  EXPECT_FALSE(button().isEnabled());
}

// --- The medal ---

TEST_F(InProgressCeremonyTest, TheMedalStandsDirectlyAboveThePicture) {
  complete();
  const auto& views = root().subviews();
  const auto picture = std::ranges::find(views, screen().imageView.lock());
  ASSERT_NE(picture, views.end());
  EXPECT_EQ(*(picture + 1), medal());
}

TEST_F(InProgressCeremonyTest, TheMedalHoldsThePictureCutToItsShape) {
  complete();
  ASSERT_EQ(medal()->subviews().size(), 1u);
  const auto& picture = dynamic_cast<UIImageView&>(*medal()->subviews().front());
  EXPECT_EQ(picture.image(), challenge->challengeImage);
  EXPECT_TRUE(picture.clipsToBounds());
  EXPECT_FALSE(medal()->clipsToBounds());
}

TEST_F(InProgressCeremonyTest, TheMedalTakesNoInput) {
  complete();
  EXPECT_FALSE(medal()->isUserInteractionEnabled());
}

TEST_F(InProgressCeremonyTest, TheMedalLooksLikeThePictureAtFirst) {
  complete();
  const UIViewState& shown = medal()->presentation();
  const UIViewState& picture = medal()->subviews().front()->presentation();
  EXPECT_EQ(shown.frame, kPicture);
  EXPECT_EQ(shown.shadowOpacity, 0);
  EXPECT_EQ(shown.shadowOffset, (CGSize{0, 3}));
  EXPECT_EQ(picture.frame, (CGRect{{0, 0}, kPicture.size}));
  EXPECT_EQ(picture.cornerRadius, 20);
}

TEST_F(InProgressCeremonyTest, TheMedalIsRoundAfterThreeQuartersOfASecond) {
  completeUntil(0.755);
  const UIViewState& shown = medal()->presentation();
  const UIViewState& picture = medal()->subviews().front()->presentation();
  EXPECT_EQ(shown.frame.size, (CGSize{80, 80}));
  EXPECT_EQ(shown.cornerRadius, 40);
  EXPECT_EQ(shown.shadowOpacity, 0.5);
  EXPECT_EQ(picture.frame, (CGRect{{0, 0}, {80, 80}}));
  EXPECT_EQ(picture.cornerRadius, 40);
}

TEST_F(InProgressCeremonyTest, TheMedalShrinksOnTheWay) {
  completeUntil(0.74);
  EXPECT_GT(medal()->presentation().frame.size.width, 80);
  EXPECT_LT(medal()->presentation().frame.size.width, 90);
  EXPECT_LT(medal()->presentation().cornerRadius, 40);
}

TEST_F(InProgressCeremonyTest, TheMedalsCentreIsThatOfThePicture) {
  complete();
  EXPECT_EQ(medal()->center(), kPictureCentre);
  EXPECT_EQ(medal()->frame().size, (CGSize{80, 80}));
}

TEST_F(InProgressCeremonyTest, TheFlightIsKeptUnderThePosition) {
  complete();
  EXPECT_NE(medal()->layerAnimation("position"), nullptr);
}

TEST_F(InProgressCeremonyTest, TheMedalFliesFromThePictureIntoTheTab) {
  complete();
  EXPECT_EQ(medalCentre(), kPictureCentre);
  until(0.998);
  EXPECT_NEAR(medalCentre().x, kIntoTheTab.x, 2);
  EXPECT_NEAR(medalCentre().y, kIntoTheTab.y, 3);
}

TEST_F(InProgressCeremonyTest, TheMedalGainsSpeed) {
  complete();
  until(0.25);
  const double early = medalCentre().y;
  until(0.75);
  const double late = medalCentre().y;
  until(0.998);
  EXPECT_GT(medalCentre().y - late, 4 * std::abs(early - kPictureCentre.y));
}

TEST_F(InProgressCeremonyTest, TheMedalRisesBeforeItDescends) {
  complete();
  double highest = kPictureCentre.y;
  for (int i = 1; i < 100; ++i) {
    until(0.01 * i);
    highest = std::min(highest, medalCentre().y);
  }
  EXPECT_LT(highest, kPictureCentre.y - 10);
  EXPECT_GT(highest, kPictureCentre.y - 100);
}

TEST_F(InProgressCeremonyTest, TheFlightTendsTo100PointsAboveItsStart) {
  const auto flight = screen().animationForFlyFromPoint(kPictureCentre, kIntoTheTab, 160);
  EXPECT_EQ(flight->path()->curves().front().control, (CGPoint{243.75, 160}));
  complete();
  until(0.5);
  const double way = CAMediaTimingFunction::easeIn().valueAt(0.5);
  EXPECT_NEAR(medalCentre().x, flight->path()->pointAt(way)->x, 1);
  EXPECT_NEAR(medalCentre().y, flight->path()->pointAt(way)->y, 1);
}

TEST_F(InProgressCeremonyTest, TheFlightTellsTheScreen) {
  EXPECT_EQ(screen().animationForFlyFromPoint({}, {1, 1}, 0)->delegate().get(),
            static_cast<CAAnimationDelegate*>(&screen()));
}

TEST_F(InProgressCeremonyTest, FindsTabsAndArcsLikeItsHelpers) {
  EXPECT_EQ(screen().frameForTabInTabBar(*tabs().tabBar(), 1), (CGRect{{195, 0}, {195, 49}}));
  EXPECT_EQ(screen().bezierPathForFlyFromPoint({100, 400}, {300, 600}, 300)->curves().front(),
            (UIBezierPath::QuadCurve{{100, 400}, {200, 300}, {300, 600}}));
}

TEST_F(InProgressCeremonyTest, WithoutTabButtonsTheMedalFliesToTheBarsCorner) {
  tab("tab0").removeFromSuperview();
  tab("tab1").removeFromSuperview();
  complete();
  EXPECT_EQ(fakes.console->lines(), (std::vector<std::string>{"Oh no"}));
  until(0.998);
  EXPECT_NEAR(medalCentre().x, 0, 3);
  EXPECT_NEAR(medalCentre().y, 795 - 64, 3);
}

TEST_F(InProgressCeremonyTest, WithoutAPictureAPlainMedalFlies) {
  screen().imageView.lock()->setImage(nullptr);
  complete();
  EXPECT_EQ(dynamic_cast<UIImageView&>(*medal()->subviews().front()).image(), nullptr);
  EXPECT_GT(medal()->subviews().front()->state().backgroundColor.alpha, 0);
  until(2.5);
  EXPECT_NE(alert(), nullptr);
}

// --- The end of the flight ---

TEST_F(InProgressCeremonyTest, TheMedalGoesAfterOneSecond) {
  completeUntil(0.99);
  const std::weak_ptr<UIView> flying = medal();
  EXPECT_NE(flying.lock()->superview(), nullptr);
  until(1.005);
  EXPECT_EQ(medal(), nullptr);
  EXPECT_TRUE(flying.expired());
}

TEST_F(InProgressCeremonyTest, TheBadgeRisesAfterOneSecond) {
  completeUntil(0.99);
  EXPECT_TRUE(badges().badgeValue().isNull());
  until(1.005);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
}

TEST_F(InProgressCeremonyTest, TheBadgeRisesOnce) {
  completeUntil(3);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
}

TEST_F(InProgressCeremonyTest, TheBadgeCountsOn) {
  badges().setBadgeValue(QStringLiteral("3"));
  completeUntil(1.01);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("4"));
}

TEST_F(InProgressCeremonyTest, ABadgeThatIsNoNumberBecomes1) {
  badges().setBadgeValue(QStringLiteral("x"));
  completeUntil(1.01);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
}

TEST_F(InProgressCeremonyTest, TheOtherTabKeepsItsBadge) {
  completeUntil(1.01);
  EXPECT_TRUE(navigation().tabBarItem()->badgeValue().isNull());
}

TEST_F(InProgressCeremonyTest, AFlightThatWasCutShortRaisesTheBadgeToo) {
  completeUntil(0.5);
  removeAnimationForKey(*medal(), "position");
  EXPECT_EQ(medal(), nullptr);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
  until(3);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
}

TEST_F(InProgressCeremonyTest, TheEndOfTheFlightCountsWhateverItsFlagSays) {
  CAKeyframeAnimation flight;
  screen().animationDidStop(flight, true);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
  screen().animationDidStop(flight, false);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("2"));
}

TEST_F(InProgressCeremonyTest, EveryCompletionCounts) {
  for (int i = 0; i < 2; ++i) {
    if (i > 0) {
      navigation().topViewController()->performSegueWithIdentifier("showInProgressChallenge",
                                                                   IndexPath{1, 0});
      time.advance(0.5);
    }
    answer("Later");
  }
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("2"));
}

TEST_F(InProgressCeremonyTest, TheFlightMayEndWhileTheScreenIsLeaving) {
  completeUntil(0.9);
  navigation().popToRootViewController(true);
  until(1.5);
  EXPECT_FALSE(isOnTop());
}

TEST_F(InProgressCeremonyTest, TheFlightMayEndAfterTheScreenWasLeft) {
  const auto kept = screen().shared_from_this();
  completeUntil(0.5);
  navigation().popToRootViewController(false);
  until(3);
  EXPECT_FALSE(isOnTop());
}

// --- The stamp ---

TEST_F(InProgressCeremonyTest, TheStampIsThereAfterThreeQuartersOfASecond) {
  completeUntil(0.74);
  EXPECT_EQ(stamp(), nullptr);
  until(0.755);
  ASSERT_NE(stamp(), nullptr);
  EXPECT_EQ(stamp()->image(), fakes.bundle->imageNamed("completed"));
  EXPECT_EQ(stamp()->contentMode(), UIViewContentMode::scaleAspectFit);
  EXPECT_EQ(stamp()->frame(), kPicture);
}

TEST_F(InProgressCeremonyTest, TheStampIsLargeAndUnseenAtFirst) {
  completeUntil(0.755);
  EXPECT_EQ(stamp()->presentation().scaling, 1.5);
  EXPECT_EQ(stamp()->presentation().alpha, 0);
}

TEST_F(InProgressCeremonyTest, TheStampDropsAfterOneAndAQuarterSeconds) {
  completeUntil(1.245);
  EXPECT_EQ(stamp()->presentation().alpha, 0);
  EXPECT_EQ(stamp()->presentation().scaling, 1.5);
  until(1.3);
  EXPECT_GT(stamp()->presentation().alpha, 0);
  EXPECT_LT(stamp()->presentation().scaling, 1.5);
}

TEST_F(InProgressCeremonyTest, TheStampGainsSpeed) {
  completeUntil(1.351);
  EXPECT_GT(stamp()->presentation().alpha, 0.25);
  EXPECT_LT(stamp()->presentation().alpha, 0.4);
}

TEST_F(InProgressCeremonyTest, TheStampHasDroppedAfter145) {
  completeUntil(1.44);
  EXPECT_LT(stamp()->presentation().alpha, 1);
  until(1.455);
  EXPECT_EQ(stamp()->presentation().alpha, 1);
  EXPECT_EQ(stamp()->presentation().scaling, 1);
}

TEST_F(InProgressCeremonyTest, TheStampIsReadAloudAsItShows) {
  completeUntil(0.755);
  EXPECT_EQ(stamp()->accessibilityRole(), UIAccessibilityRole::alert);
  EXPECT_EQ(stamp()->accessibilityLabel(), "Completed");
}

TEST_F(InProgressCeremonyTest, WithoutAStampPictureTheCeremonyGoesOn) {
  fakes.bundle->setMissing("completed");
  completeUntil(2.5);
  EXPECT_NE(alert(), nullptr);
}

// --- A turn of the phone meanwhile ---

TEST_F(InProgressCeremonyTest, AfterATurnTheMedalFliesIntoWhereTheTabIs) {
  completeUntil(0.5);
  turn();
  until(0.998);
  EXPECT_NEAR(medalCentre().x, kIntoTheTurnedTab.x, 2);
  EXPECT_NEAR(medalCentre().y, kIntoTheTurnedTab.y, 3);
}

TEST_F(InProgressCeremonyTest, AfterATurnTheMedalIsAsFarOnItsWayAsItWas) {
  completeUntil(0.5);
  const auto way = screen().bezierPathForFlyFromPoint(kTurnedPictureCentre, kIntoTheTurnedTab,
                                                      kTurnedPictureCentre.y - 100);
  turn();
  const CGPoint there = *way->pointAt(CAMediaTimingFunction::easeIn().valueAt(0.5));
  EXPECT_NEAR(medalCentre().x, there.x, 1);
  EXPECT_NEAR(medalCentre().y, there.y, 1);
}

TEST_F(InProgressCeremonyTest, AfterATurnTheMedalStillShrinksAndArrivesInTime) {
  completeUntil(0.5);
  turn();
  until(0.755);
  EXPECT_EQ(medal()->presentation().frame.size, (CGSize{80, 80}));
  until(0.99);
  EXPECT_NE(medal(), nullptr);
  EXPECT_TRUE(badges().badgeValue().isNull());
  until(1.005);
  EXPECT_EQ(medal(), nullptr);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
}

TEST_F(InProgressCeremonyTest, ATurnBeforeTheStampDropsPutsItOverThePictureUnseen) {
  completeUntil(1);
  turn();
  EXPECT_EQ(stamp()->frame(), kTurnedPicture);
  EXPECT_EQ(stamp()->presentation().alpha, 0);
  EXPECT_EQ(stamp()->presentation().scaling, 1.5);
  until(1.455);
  EXPECT_EQ(stamp()->presentation().frame, kTurnedPicture);
  EXPECT_EQ(stamp()->presentation().alpha, 1);
  EXPECT_EQ(stamp()->presentation().scaling, 1);
}

TEST_F(InProgressCeremonyTest, ATurnWhileTheStampDropsLetsItDropOn) {
  completeUntil(1.351);
  turn();
  EXPECT_EQ(stamp()->presentation().frame, kTurnedPicture);
  EXPECT_LT(stamp()->presentation().alpha, 0.4);
  until(1.455);
  EXPECT_EQ(stamp()->presentation().frame, kTurnedPicture);
}

TEST_F(InProgressCeremonyTest, ATurnUnderTheQuestionTakesTheStampAlong) {
  completeUntil(2.5);
  turn();
  EXPECT_EQ(stamp()->presentation().frame, kTurnedPicture);
}

TEST_F(InProgressCeremonyTest, ATurnAfterTheScreenWasLeftIsNoHarm) {
  const auto kept = screen().shared_from_this();
  const auto picture = screen().imageView.lock();
  completeUntil(0.5);
  navigation().popToRootViewController(false);
  picture->reportFrame(kTurnedPicture);
  until(3);
  EXPECT_FALSE(isOnTop());
}

// --- The alert ---

TEST_F(InProgressCeremonyTest, AsksAfter195Seconds) {
  completeUntil(1.94);
  EXPECT_EQ(alert(), nullptr);
  until(1.96);
  EXPECT_NE(alert(), nullptr);
}

TEST_F(InProgressCeremonyTest, TheAlertComesInAnimated) {
  completeUntil(2.0);
  EXPECT_GT(alert()->presentationProgress(), 0);
  EXPECT_LT(alert()->presentationProgress(), 1);
}

TEST_F(InProgressCeremonyTest, AsksWhetherToPassItOn) {
  completeUntil(2.5);
  EXPECT_EQ(alert()->titleText(), "Congrats!");
  EXPECT_EQ(alert()->message(), "Would you like to pass this challenge on to a friend?");
  EXPECT_EQ(alert()->preferredStyle(), UIAlertControllerStyle::alert);
  ASSERT_EQ(alert()->actions().size(), 2u);
  EXPECT_EQ(alert()->actions()[0].title, "Later");
  EXPECT_EQ(alert()->actions()[0].style, UIAlertActionStyle::cancel);
  EXPECT_EQ(alert()->actions()[1].title, "Kindora!");
  EXPECT_EQ(alert()->actions()[1].style, UIAlertActionStyle::normal);
}

TEST_F(InProgressCeremonyTest, LaterLeadsBackToTheList) {
  answer("Later");
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
  EXPECT_EQ(tabs().selectedIndex(), 0);
  EXPECT_EQ(badges().badgeValue(), QStringLiteral("1"));
  EXPECT_FALSE(challenge->passedOn);
}

TEST_F(InProgressCeremonyTest, EscapeMeansLater) {
  completeUntil(2.5);
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(1);
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
  EXPECT_EQ(tabs().selectedIndex(), 0);
}

TEST_F(InProgressCeremonyTest, KindoraLeadsToThePickerOfThatChallenge) {
  answer("Kindora!");
  EXPECT_EQ(tabs().selectedIndex(), 1);
  ASSERT_EQ(badgesStack().viewControllers().size(), 3u);
  EXPECT_EQ(dynamic_cast<BadgeInfoViewController&>(*badgesStack().viewControllers()[1]).challenge,
            challenge);
  EXPECT_EQ(dynamic_cast<KindoraTableViewController&>(*badgesStack().topViewController()).challenge,
            challenge);
  EXPECT_TRUE(badgesStack().topViewController()->isVisible());
}

TEST_F(InProgressCeremonyTest, AfterKindoraTheOtherTabIsBackAtItsList) {
  answer("Kindora!");
  EXPECT_EQ(navigation().viewControllers().size(), 1u);
  tabs().pressTab(0);
  EXPECT_TRUE(navigation().topViewController()->isVisible());
}

TEST_F(InProgressCeremonyTest, TheScreenIsReleasedInTheEnd) {
  const std::weak_ptr<UIViewController> gone = screen().weak_from_this();
  answer("Later");
  EXPECT_TRUE(gone.expired());
}

}  // namespace
}  // namespace kindora
