// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIStoryboard.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {
namespace {

// Remembers how it was opened.
class Screen final : public UIViewController {
 public:
  std::string preparedFor;
  std::string preparedBy;
  UIViewControllerRef source;
  UIViewControllerRef destination;
  bool destinationWasLoaded = false;
  bool cameBack = false;
  std::weak_ptr<UIView> outlet;

  void prepareForSegue(const UIStoryboardSegue& segue, const std::any& sender) override {
    preparedFor = segue.identifier;
    if (const auto* text = std::any_cast<std::string>(&sender)) preparedBy = *text;
    source = segue.sourceViewController;
    destination = segue.destinationViewController;
    destinationWasLoaded = segue.destinationViewController->isViewLoaded();
  }
  void viewDidLoad() override { wasConnectedAtLoad = !outlet.expired(); }
  bool wasConnectedAtLoad = false;
};

UIViewControllerRef makeScreen() { return makeViewController<Screen>(); }

std::vector<UIStoryboardScene> scenes() {
  using Kind = UIStoryboardSegueKind;
  return {
      {.identifier = "list",
       .make = makeScreen,
       .page = QUrl(QStringLiteral("qrc:/List.qml")),
       .segues = {{"showDetail", Kind::show, "detail"},
                  {"compose", Kind::presentModally, "composer"},
                  {"nowhere", Kind::show, "missing"}},
       .unwindActions = {{"unwind",
                          [](UIViewController& list, const UIStoryboardSegue&) {
                            dynamic_cast<Screen&>(list).cameBack = true;
                          }}}},
      {.identifier = "detail",
       .make = makeScreen,
       .connectOutlets =
           [](UIViewController& detail) {
             connectOutlet(dynamic_cast<Screen&>(detail).outlet, "outlet", *detail.view());
           },
       .segues = {{"showDetail", Kind::show, "detail"},
                  {"unwind", Kind::unwind, "unwind"},
                  {"lost", Kind::unwind, "nobodyKnows"}}},
      {.identifier = "composer",
       .make =
           [] { return makeViewController<UINavigationController>(makeViewController<Screen>()); }},
  };
}

class UIStoryboardTest : public ToolkitFixture {
 protected:
  UIStoryboardTest() { show(navigation); }

  Screen& top() { return dynamic_cast<Screen&>(*navigation->topViewController()); }

  const UIStoryboard storyboard{scenes()};
  const std::shared_ptr<Screen> list =
      std::dynamic_pointer_cast<Screen>(storyboard.instantiateViewController("list"));
  const std::shared_ptr<UINavigationController> navigation =
      makeViewController<UINavigationController>(list);
};

TEST_F(UIStoryboardTest, MakesANewControllerEachTime) {
  const auto one = storyboard.instantiateViewController("detail");
  const auto other = storyboard.instantiateViewController("detail");
  EXPECT_NE(one, other);
  EXPECT_EQ(one->storyboard(), &storyboard);
}

TEST_F(UIStoryboardTest, TellsTheControllerItsPage) {
  EXPECT_EQ(list->page(), QUrl(QStringLiteral("qrc:/List.qml")));
}

TEST_F(UIStoryboardTest, AnUnknownSceneStops) {
  EXPECT_DEATH(static_cast<void>(storyboard.instantiateViewController("missing")),
               "fatal error: the storyboard has no scene \"missing\"");
}

TEST_F(UIStoryboardTest, ConnectsOutletsBeforeTheViewHasLoaded) {
  const auto detail =
      std::dynamic_pointer_cast<Screen>(storyboard.instantiateViewController("detail"));
  EXPECT_TRUE(detail->outlet.expired());
  detail->loadViewIfNeeded();
  EXPECT_TRUE(detail->wasConnectedAtLoad);
  EXPECT_EQ(detail->outlet.lock()->superview(), detail->view());
}

TEST_F(UIStoryboardTest, AShowSeguePushesItsDestination) {
  list->performSegueWithIdentifier("showDetail");
  EXPECT_EQ(navigation->viewControllers().size(), 2u);
  EXPECT_TRUE(navigation->isTransitioning());
}

TEST_F(UIStoryboardTest, ASegueIsPreparedBeforeTheDestinationLoads) {
  list->performSegueWithIdentifier("showDetail", std::string("the sender"));
  EXPECT_EQ(list->preparedFor, "showDetail");
  EXPECT_EQ(list->preparedBy, "the sender");
  EXPECT_EQ(list->source, list);
  EXPECT_EQ(list->destination, navigation->topViewController());
  EXPECT_FALSE(list->destinationWasLoaded);
}

TEST_F(UIStoryboardTest, AModalSeguePresentsItsDestination) {
  list->performSegueWithIdentifier("compose");
  EXPECT_EQ(list->presentedViewController(), list->destination);
  EXPECT_EQ(navigation->viewControllers().size(), 1u);
}

TEST_F(UIStoryboardTest, AnUnknownSegueStops) {
  EXPECT_DEATH(list->performSegueWithIdentifier("showOther"),
               "fatal error: the screen has no segue \"showOther\"");
}

TEST_F(UIStoryboardTest, ASegueOfAnotherScreenStops) {
  EXPECT_DEATH(list->performSegueWithIdentifier("unwind"),
               "fatal error: the screen has no segue \"unwind\"");
}

TEST_F(UIStoryboardTest, ASegueToAnUnknownSceneStops) {
  EXPECT_DEATH(list->performSegueWithIdentifier("nowhere"),
               "fatal error: the storyboard has no scene \"missing\"");
}

TEST_F(UIStoryboardTest, UnwindingPopsToTheScreenThatKnowsTheAction) {
  list->performSegueWithIdentifier("showDetail");
  time.advance(0.5);
  top().performSegueWithIdentifier("showDetail");
  time.advance(0.5);
  top().performSegueWithIdentifier("unwind");
  EXPECT_TRUE(list->cameBack);
  EXPECT_EQ(navigation->viewControllers().size(), 1u);
  time.advance(0.5);
  EXPECT_TRUE(list->isVisible());
}

TEST_F(UIStoryboardTest, UnwindingIsPreparedByTheScreenThatLeaves) {
  list->performSegueWithIdentifier("showDetail");
  time.advance(0.5);
  const auto detail = std::dynamic_pointer_cast<Screen>(navigation->topViewController());
  detail->performSegueWithIdentifier("unwind", std::string("done"));
  EXPECT_EQ(detail->preparedFor, "unwind");
  EXPECT_EQ(detail->preparedBy, "done");
  EXPECT_EQ(detail->destination, list);
}

TEST_F(UIStoryboardTest, UnwindingToNobodyChangesNothing) {
  list->performSegueWithIdentifier("showDetail");
  time.advance(0.5);
  top().performSegueWithIdentifier("lost");
  EXPECT_EQ(navigation->viewControllers().size(), 2u);
  EXPECT_FALSE(list->cameBack);
}

TEST_F(UIStoryboardTest, UnwindingFromAPageDismissesIt) {
  const UIViewControllerRef detail = storyboard.instantiateViewController("detail");
  const auto inner = makeViewController<UINavigationController>(detail);
  list->presentViewController(inner, false);
  detail->performSegueWithIdentifier("unwind");
  time.advance(0.5);
  EXPECT_TRUE(list->cameBack);
  EXPECT_EQ(list->presentedViewController(), nullptr);
  EXPECT_TRUE(list->isVisible());
}

}  // namespace
}  // namespace kindora
