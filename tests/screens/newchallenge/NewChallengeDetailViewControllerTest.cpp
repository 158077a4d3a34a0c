// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/screens/newchallenge/NewChallengeFixture.h"

namespace kindora {
namespace {

using Screen = NewChallengeDetailViewController;

// --- Setting up ---

TEST_F(NewChallengeDetailViewControllerTest, AMissingChallengeStops) {
  const auto orphan =
      mainStoryboard().instantiateViewController("NewChallengeDetailViewController");
  EXPECT_DEATH(orphan->loadViewIfNeeded(), "fatal error: the screen has no challenge");
}

TEST_F(NewChallengeDetailViewControllerTest, IsLaidOutBeforeItTakesItsCover) {
  bool laidOut = false;
  Subscription layouts;
  UIImageRef coverThen = fakes.bundle->imageNamed("another");
  const UIStoryboard storyboard({{.identifier = "screen",
                                  .make = [] { return makeViewController<Screen>(); },
                                  .connectOutlets =
                                      [&](UIViewController& controller) {
                                        auto& made = dynamic_cast<Screen&>(controller);
                                        made.connectOutlets();
                                        layouts = made.view()->observeLayout([&] {
                                          laidOut = true;
                                          coverThen = made.scratchImageView.lock()->image();
                                        });
                                      }}});
  const auto made =
      std::dynamic_pointer_cast<Screen>(storyboard.instantiateViewController("screen"));
  made->challenge = store().newChallenges[0];
  made->loadViewIfNeeded();
  EXPECT_TRUE(laidOut);
  EXPECT_EQ(coverThen, nullptr);
  EXPECT_NE(made->scratchImageView.lock()->image(), nullptr);
}

TEST_F(NewChallengeDetailViewControllerTest, CoversTheChallengeWithABrushOf50Pixels) {
  const UIImageRef image = UIImage::imageWithRaster(Raster(600, 600));
  fakes.bundle->setImage("scratchImage", image);
  open();
  EXPECT_EQ(cover()->image(), image);
  EXPECT_EQ(cover()->radius(), 50u);
  EXPECT_EQ(cover()->tilesX(), 6u);
}

TEST_F(NewChallengeDetailViewControllerTest, HearsFromItsCover) {
  open();
  EXPECT_EQ(cover()->delegate().get(), static_cast<JxScratchImageViewDelegate*>(&screen()));
}

TEST_F(NewChallengeDetailViewControllerTest, AMissingCoverPictureIsNoCoverPicture) {
  fakes.bundle->setMissing("scratchImage");
  open();
  EXPECT_EQ(cover()->image(), nullptr);
  EXPECT_TRUE(cover()->isUserInteractionEnabled());
}

TEST_F(NewChallengeDetailViewControllerTest, WithoutACoverPictureTheFirstTouchReveals) {
  fakes.bundle->setMissing("scratchImage");
  open();
  cover()->touchesBegan({{UITouchPhase::began, {5, 5}, {5, 5}}});
  EXPECT_FALSE(screen().doneScratching());
  time.settle();
  EXPECT_TRUE(screen().doneScratching());
}

TEST_F(NewChallengeDetailViewControllerTest, ShowsTheChallenge) {
  const ChallengeRef challenge = store().newChallenges[0];
  open();
  EXPECT_EQ(screen().imageView.lock()->image(), challenge->challengeImage);
  EXPECT_EQ(screen().challengeNameLabel.lock()->text(), "Cup o' Coffee");
  EXPECT_EQ(screen().challengeDescriptionLabel.lock()->text(), "Buy a coffee for someone!");
}

TEST_F(NewChallengeDetailViewControllerTest, AbsentFieldsOfTheChallengeStayAbsent) {
  const ChallengeRef challenge = store().newChallenges[0];
  challenge->title = std::nullopt;
  challenge->description = std::nullopt;
  challenge->challengeImage = nullptr;
  open();
  EXPECT_EQ(screen().imageView.lock()->image(), nullptr);
  EXPECT_EQ(screen().challengeNameLabel.lock()->text(), std::nullopt);
  EXPECT_EQ(screen().challengeDescriptionLabel.lock()->text(), std::nullopt);
}

TEST_F(NewChallengeDetailViewControllerTest, NamesTheSender) {
  const ChallengeRef challenge = store().newChallenges[0];
  open();
  EXPECT_EQ(screen().senderImageView.lock()->image(), challenge->sender->picture);
  EXPECT_EQ(screen().senderLabel.lock()->text(), "Bob the Astronaut challenged you!");
}

TEST_F(NewChallengeDetailViewControllerTest, AnUnknownSenderIsSomeone) {
  store().newChallenges[0]->sender = nullptr;
  open();
  EXPECT_EQ(screen().senderImageView.lock()->image(), nullptr);
  EXPECT_EQ(screen().senderLabel.lock()->text(), "Someone challenged you!");
}

TEST_F(NewChallengeDetailViewControllerTest, TheCoverCastsAShadow) {
  open();
  EXPECT_EQ(cover()->state().shadowOpacity, 0.5);
  EXPECT_EQ(cover()->state().shadowOffset, (CGSize{0, 3}));
}

TEST_F(NewChallengeDetailViewControllerTest, TextsAndButtonsWaitUnseen) {
  open();
  EXPECT_EQ(screen().challengeNameLabel.lock()->presentation().alpha, 0);
  EXPECT_EQ(screen().challengeDescriptionLabel.lock()->presentation().alpha, 0);
  ASSERT_EQ(screen().buttons.size(), 2u);
  for (const auto& button : screen().buttons) {
    EXPECT_EQ(button.lock()->presentation().alpha, 0);
    EXPECT_FALSE(button.lock()->isEnabled());
  }
}

TEST_F(NewChallengeDetailViewControllerTest, TheRejectButtonIsOneOfTheButtons) {
  open();
  EXPECT_EQ(screen().buttons[0].lock()->title(), "Accept");
  EXPECT_EQ(screen().buttons[1].lock(), screen().rejectButton.lock());
  EXPECT_EQ(screen().rejectButton.lock()->title(), "Reject");
}

TEST_F(NewChallengeDetailViewControllerTest, TheContentIsHeldInTheMiddle) {
  open();
  const auto& constraints = screen().view()->constraints();
  const auto holds = [&](const auto& outlet) {
    return std::ranges::find(constraints, outlet.lock()) != constraints.end();
  };
  EXPECT_TRUE(holds(screen().centerVerticallyConstraint));
  EXPECT_TRUE(holds(screen().leftConstraint));
  EXPECT_TRUE(holds(screen().rightConstraint));
  EXPECT_EQ(screen().centerVerticallyConstraint.lock()->firstAttribute(),
            NSLayoutAttribute::centerY);
}

// An outlet that the storyboard forgot.
struct ForgottenOutlet {
  const char* name;
  std::function<void(Screen&)> forget;
};

class NewChallengeDetailViewControllerOutletTest
    : public NewChallengeDetailViewControllerTest,
      public ::testing::WithParamInterface<ForgottenOutlet> {
 protected:
  std::shared_ptr<Screen> make() {
    auto made = std::dynamic_pointer_cast<Screen>(storyboard_.instantiateViewController("screen"));
    made->challenge = store().newChallenges[0];
    return made;
  }

 private:
  UIStoryboard storyboard_{{{.identifier = "screen",
                             .make = [] { return makeViewController<Screen>(); },
                             .connectOutlets =
                                 [](UIViewController& controller) {
                                   auto& made = dynamic_cast<Screen&>(controller);
                                   made.connectOutlets();
                                   GetParam().forget(made);
                                 }}}};
};

using NewChallengeDetailViewControllerLoadTest = NewChallengeDetailViewControllerOutletTest;

TEST_P(NewChallengeDetailViewControllerLoadTest, AnOutletThatIsNotConnectedStopsTheLoading) {
  const auto made = make();
  EXPECT_DEATH(made->loadViewIfNeeded(), "fatal error: an outlet is not connected");
}

INSTANTIATE_TEST_SUITE_P(
    Outlets, NewChallengeDetailViewControllerLoadTest,
    ::testing::Values(
        ForgottenOutlet{"ImageView", [](Screen& s) { s.imageView.reset(); }},
        ForgottenOutlet{"ScratchImageView", [](Screen& s) { s.scratchImageView.reset(); }},
        ForgottenOutlet{"NameLabel", [](Screen& s) { s.challengeNameLabel.reset(); }},
        ForgottenOutlet{"DescriptionLabel", [](Screen& s) { s.challengeDescriptionLabel.reset(); }},
        ForgottenOutlet{"SenderImageView", [](Screen& s) { s.senderImageView.reset(); }},
        ForgottenOutlet{"SenderLabel", [](Screen& s) { s.senderLabel.reset(); }}),
    [](const auto& instance) { return std::string(instance.param.name); });

class NewChallengeDetailViewControllerRevealOutletTest
    : public NewChallengeDetailViewControllerOutletTest {};

TEST_P(NewChallengeDetailViewControllerRevealOutletTest, StopsTheRevealThatUsesIt) {
  const auto made = make();
  made->loadViewIfNeeded();
  EXPECT_DEATH(
      {
        made->setDoneScratching(true);
        time.advance(2);
      },
      "fatal error: an outlet is not connected");
}

INSTANTIATE_TEST_SUITE_P(
    Outlets, NewChallengeDetailViewControllerRevealOutletTest,
    ::testing::Values(ForgottenOutlet{"RejectButton", [](Screen& s) { s.rejectButton.reset(); }},
                      ForgottenOutlet{"OneOfTheButtons", [](Screen& s) { s.buttons[0].reset(); }}),
    [](const auto& instance) { return std::string(instance.param.name); });

// --- Scratching ---

TEST_F(OpenNewChallengeDetailViewControllerTest, AReportDoesNothingBeforeTheMainQueueRuns) {
  report(1);
  EXPECT_FALSE(wayBackIsHidden());
  EXPECT_FALSE(screen().doneScratching());
  EXPECT_EQ(fakes.mainQueue->pendingCount(), 1u);
  fakes.mainQueue->runPending();
  EXPECT_TRUE(wayBackIsHidden());
  EXPECT_TRUE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AScratchOnTheCoverIsHeard) {
  fakes.mainQueue->runPending();
  cover()->setImage(UIImage::imageWithRaster(Raster(600, 600)), 50);
  cover()->setFrame({{0, 0}, {300, 300}});
  cover()->touchesBegan({{UITouchPhase::began, {150, 150}, {150, 150}}});
  EXPECT_FALSE(wayBackIsHidden());
  time.settle();
  EXPECT_TRUE(wayBackIsHidden());
  EXPECT_FALSE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AReportOf0HidesTheBackButton) {
  reportNow(0);
  EXPECT_TRUE(wayBackIsHidden());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AReportThatIsNotANumberHidesTheBackButton) {
  reportNow(std::numeric_limits<double>::quiet_NaN());
  EXPECT_TRUE(wayBackIsHidden());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, HidingTheBackButtonLaysTheBarOutOnce) {
  int layouts = 0;
  QObject::connect(navigation().navigationBar(), &UINavigationBar::layoutRequested,
                   [&layouts] { ++layouts; });
  reportNow(0.1);
  EXPECT_EQ(layouts, 1);
  reportNow(0.2);
  EXPECT_EQ(layouts, 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, Exactly70PercentDoNotReveal) {
  reportNow(0.7);
  EXPECT_FALSE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheNextNumberAbove70PercentReveals) {
  reportNow(std::nextafter(0.7, 1.0));
  EXPECT_TRUE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AHairAbove70PercentReveals) {
  reportNow(0.7000001);
  EXPECT_TRUE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AProgressThatIsNotANumberDoesNotReveal) {
  reportNow(std::numeric_limits<double>::quiet_NaN());
  EXPECT_FALSE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, InfiniteProgressReveals) {
  reportNow(std::numeric_limits<double>::infinity());
  EXPECT_TRUE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, NegativeInfinityDoesNotReveal) {
  reportNow(-std::numeric_limits<double>::infinity());
  EXPECT_FALSE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, RevealsOnceHoweverManyReportsCome) {
  report(0.71);
  report(0.8);
  report(0.9);
  time.settle();
  const auto kept = cover();
  time.advance(0.1);
  const double alpha = kept->presentation().alpha;
  EXPECT_LT(alpha, 1);
  reportNow(1);
  EXPECT_EQ(kept->presentation().alpha, alpha);
  time.advance(0.16);
  EXPECT_EQ(kept->superview(), nullptr);
  time.advance(2);
  int closings = 0;
  for (const auto& constraint : screen().view()->constraints()) {
    if (constraint->firstItem() == screen().rejectButton.lock()) ++closings;
  }
  EXPECT_EQ(closings, 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, ALowerProgressDoesNotTakeTheRevealBack) {
  reportNow(0.8);
  reportNow(0.1);
  EXPECT_TRUE(screen().doneScratching());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, EveryTrueStartsTheReveal) {
  const auto kept = cover();
  screen().setDoneScratching(true);
  EXPECT_EQ(kept->alpha(), 0);
  kept->setAlpha(1);
  screen().setDoneScratching(true);
  EXPECT_EQ(kept->alpha(), 0);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, FalseStartsNothing) {
  screen().setDoneScratching(false);
  time.advance(0.5);
  EXPECT_EQ(cover()->alpha(), 1);
  EXPECT_NE(cover()->superview(), nullptr);
}

// --- The reveal ---

TEST_F(OpenNewChallengeDetailViewControllerTest, TheCoverFadesIn250Milliseconds) {
  const auto kept = cover();
  reportNow(0.71);
  EXPECT_EQ(kept->presentation().alpha, 1);
  time.advance(0.125);
  EXPECT_NEAR(kept->presentation().alpha, 0.5, 0.02);
  time.advance(0.124);
  EXPECT_GT(kept->presentation().alpha, 0);
  EXPECT_NE(kept->superview(), nullptr);
  time.advance(0.003);
  EXPECT_EQ(kept->presentation().alpha, 0);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheFadedCoverGoesAltogether) {
  const std::weak_ptr<JxScratchImageView> kept = cover();
  reportNow(0.71);
  time.advance(0.26);
  EXPECT_EQ(screen().view()->viewWithName("scratchImageView"), nullptr);
  EXPECT_TRUE(kept.expired());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheContentIsNoLongerHeldInTheMiddle) {
  const auto kept = screen().centerVerticallyConstraint.lock();
  reportNow(0.71);
  time.advance(0.24);
  EXPECT_NE(std::ranges::find(screen().view()->constraints(), kept),
            screen().view()->constraints().end());
  time.advance(0.02);
  EXPECT_EQ(std::ranges::find(screen().view()->constraints(), kept),
            screen().view()->constraints().end());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheButtonsComeToStand16PointsUnderTheDescription) {
  reportNow(0.71);
  time.advance(0.26);
  const NSLayoutConstraint& added = *screen().view()->constraints().back();
  EXPECT_EQ(added.firstItem(), screen().rejectButton.lock());
  EXPECT_EQ(added.firstAttribute(), NSLayoutAttribute::top);
  EXPECT_EQ(added.relation(), NSLayoutRelation::equal);
  EXPECT_EQ(added.secondItem(), screen().challengeDescriptionLabel.lock());
  EXPECT_EQ(added.secondAttribute(), NSLayoutAttribute::bottom);
  EXPECT_EQ(added.multiplier(), 1);
  EXPECT_EQ(added.constant(), 16);
}

TEST_F(OpenNewChallengeDetailViewControllerTest,
       TheLayoutClosesUpBetween750MillisecondsAndOneSecond) {
  reportNow(0.71);
  time.advance(0.749);
  EXPECT_EQ(screen().view()->presentation().layout, 0);
  time.advance(0.125);
  EXPECT_NEAR(screen().view()->presentation().layout, 0.5, 0.03);
  time.advance(0.130);
  EXPECT_EQ(screen().view()->presentation().layout, 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheTextsFadeInBetween1250And1500Milliseconds) {
  reportNow(0.71);
  const auto name = screen().challengeNameLabel.lock();
  const auto description = screen().challengeDescriptionLabel.lock();
  time.advance(1.249);
  EXPECT_EQ(name->presentation().alpha, 0);
  time.advance(0.126);
  EXPECT_NEAR(name->presentation().alpha, 0.5, 0.03);
  EXPECT_EQ(description->presentation().alpha, name->presentation().alpha);
  time.advance(0.130);
  EXPECT_EQ(name->presentation().alpha, 1);
  EXPECT_EQ(description->presentation().alpha, 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheButtonsFadeInLastUntil1750Milliseconds) {
  reportNow(0.71);
  time.advance(1.499);
  for (const auto& button : screen().buttons) EXPECT_EQ(button.lock()->presentation().alpha, 0);
  time.advance(0.126);
  for (const auto& button : screen().buttons) {
    EXPECT_NEAR(button.lock()->presentation().alpha, 0.5, 0.04);
  }
  time.advance(0.130);
  for (const auto& button : screen().buttons) EXPECT_EQ(button.lock()->presentation().alpha, 1);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheButtonsWorkFromTheLastStepOn) {
  reportNow(0.71);
  time.advance(1.499);
  for (const auto& button : screen().buttons) EXPECT_FALSE(button.lock()->isEnabled());
  time.advance(0.006);
  for (const auto& button : screen().buttons) EXPECT_TRUE(button.lock()->isEnabled());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, ThePictureStaysAfterTheCoverHasGone) {
  reveal();
  EXPECT_NE(screen().imageView.lock()->superview(), nullptr);
  EXPECT_EQ(screen().imageView.lock()->presentation().alpha, 1);
}

// --- The way back ---

TEST_F(OpenNewChallengeDetailViewControllerTest, BeforeTheFirstScratchOneMayGoBack) {
  const auto before = store().newChallenges;
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_FALSE(isOnTop());
  EXPECT_EQ(store().newChallenges, before);
}

TEST_F(OpenNewChallengeDetailViewControllerTest, ASecondVisitFindsAFreshCover) {
  cover()->setImage(UIImage::imageWithRaster(Raster(600, 600)), 50);
  cover()->setFrame({{0, 0}, {300, 300}});
  cover()->touchesBegan({{UITouchPhase::began, {150, 150}, {150, 150}}});
  ASSERT_EQ(cover()->tilesFilled(), 1);
  navigation().popViewController(false);
  open();
  EXPECT_EQ(cover()->tilesFilled(), 0);
  EXPECT_EQ(cover()->image(), fakes.bundle->imageNamed("scratchImage"));
  EXPECT_FALSE(wayBackIsHidden());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AfterAScratchTheBackButtonLeadsNowhere) {
  reportNow(0);
  EXPECT_FALSE(navigation().canGoBack());
  EXPECT_FALSE(navigation().goBack());
  time.advance(0.5);
  EXPECT_TRUE(isOnTop());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AfterAScratchTheBackGestureDoesNotBegin) {
  reportNow(0);
  EXPECT_FALSE(navigation().beginBackGesture());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AScratchDuringTheBackGestureKeepsTheScreen) {
  ASSERT_TRUE(navigation().beginBackGesture());
  navigation().moveBackGesture(0.4);
  reportNow(0);
  navigation().endBackGesture(true);
  time.advance(0.5);
  EXPECT_TRUE(isOnTop());
  EXPECT_TRUE(screen().isVisible());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AfterAScratchTheSystemsBackLeadsNowhere) {
  reportNow(0);
  EXPECT_FALSE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_TRUE(isOnTop());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, AfterAScratchTheTabDoesNotLeadBackEither) {
  reportNow(0);
  tabs().pressTab(0);
  time.advance(0.5);
  EXPECT_TRUE(isOnTop());
}

TEST_F(OpenNewChallengeDetailViewControllerTest, TheOtherTabStaysWithinReach) {
  reportNow(0);
  tabs().pressTab(1);
  EXPECT_EQ(tabs().selectedIndex(), 1);
  tabs().pressTab(0);
  EXPECT_TRUE(isOnTop());
  EXPECT_TRUE(wayBackIsHidden());
}

}  // namespace
}  // namespace kindora
