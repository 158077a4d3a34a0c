// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIAlertController.h"

#include "tests/toolkit/controllers/ToolkitFixture.h"

namespace kindora {
namespace {

class UIAlertControllerTest : public ToolkitFixture {
 protected:
  UIAlertControllerTest() {
    show(a);
    log();
  }

  std::shared_ptr<UIAlertController> present(
      UIAlertControllerStyle style = UIAlertControllerStyle::alert) {
    auto alert = makeViewController<UIAlertController>("Really?", "Think again.", style);
    alert->addAction({"Delete", UIAlertActionStyle::destructive, noted("deleted")});
    alert->addAction({"Keep", UIAlertActionStyle::cancel, noted("kept")});
    alert->addAction({"Ask", UIAlertActionStyle::normal, {}});
    a->presentViewController(alert, false);
    return alert;
  }
  std::shared_ptr<UIAlertController> presentWithoutActions() {
    auto alert =
        makeViewController<UIAlertController>("Done", std::nullopt, UIAlertControllerStyle::alert);
    a->presentViewController(alert, false);
    return alert;
  }
  std::function<void()> noted(const std::string& what) {
    return [this, what] { note(what); };
  }
  bool isPresented() { return a->presentedViewController() != nullptr; }

  const std::shared_ptr<RecordingController> a = screen("a");
};

TEST_F(UIAlertControllerTest, KeepsWhatItWasMadeWith) {
  const auto alert = present();
  EXPECT_EQ(alert->titleText(), "Really?");
  EXPECT_EQ(alert->message(), "Think again.");
  EXPECT_EQ(alert->preferredStyle(), UIAlertControllerStyle::alert);
  EXPECT_EQ(alert->alertTitle(), QStringLiteral("Really?"));
  EXPECT_EQ(alert->alertMessage(), QStringLiteral("Think again."));
}

TEST_F(UIAlertControllerTest, AbsentTextsAreDrawnAsNone) {
  const UIAlertController alert(std::nullopt, std::nullopt, UIAlertControllerStyle::alert);
  EXPECT_EQ(alert.titleText(), std::nullopt);
  EXPECT_EQ(alert.message(), std::nullopt);
  EXPECT_TRUE(alert.alertTitle().isEmpty());
  EXPECT_TRUE(alert.alertMessage().isEmpty());
}

TEST_F(UIAlertControllerTest, ListsItsActionsInOrder) {
  const auto alert = present();
  EXPECT_EQ(alert->actionTitles(),
            QStringList({QStringLiteral("Delete"), QStringLiteral("Keep"), QStringLiteral("Ask")}));
  EXPECT_EQ(alert->cancelIndex(), 1);
  EXPECT_TRUE(alert->isDestructive(0));
  EXPECT_FALSE(alert->isDestructive(1));
}

TEST_F(UIAlertControllerTest, WithoutActionsThereIsNothingToCancel) {
  const auto alert = presentWithoutActions();
  EXPECT_TRUE(alert->actionTitles().isEmpty());
  EXPECT_EQ(alert->cancelIndex(), -1);
}

TEST_F(UIAlertControllerTest, EachStyleIsDrawnByAPageOfItsOwn) {
  const UIAlertController alert("", "", UIAlertControllerStyle::alert);
  const UIAlertController sheet("", "", UIAlertControllerStyle::actionSheet);
  EXPECT_EQ(alert.page().fileName(), QStringLiteral("AlertHost.qml"));
  EXPECT_EQ(sheet.page().fileName(), QStringLiteral("ActionSheetHost.qml"));
}

TEST_F(UIAlertControllerTest, AChoiceRunsItsHandlerWhenTheAlertHasGone) {
  const auto alert = present();
  alert->choose(0);
  time.advance(0.24);
  EXPECT_EQ(log(), (Lines{}));
  EXPECT_TRUE(isPresented());
  time.advance(0.02);
  EXPECT_EQ(log(), (Lines{"deleted"}));
  EXPECT_FALSE(isPresented());
}

TEST_F(UIAlertControllerTest, AnActionWithoutAHandlerOnlyCloses) {
  const auto alert = present();
  alert->choose(2);
  time.advance(0.3);
  EXPECT_EQ(log(), (Lines{}));
  EXPECT_FALSE(isPresented());
}

TEST_F(UIAlertControllerTest, OnlyTheFirstChoiceCounts) {
  const auto alert = present();
  alert->choose(1);
  alert->choose(0);
  time.advance(0.3);
  EXPECT_EQ(log(), (Lines{"kept"}));
}

TEST_F(UIAlertControllerTest, AChoiceThatIsNoneChangesNothing) {
  const auto alert = present();
  alert->choose(3);
  alert->choose(-1);
  time.advance(0.3);
  EXPECT_TRUE(isPresented());
  alert->choose(1);
  time.advance(0.3);
  EXPECT_EQ(log(), (Lines{"kept"}));
}

TEST_F(UIAlertControllerTest, GoingBackChoosesTheCancelAction) {
  const auto alert = present();
  EXPECT_TRUE(alert->goBack());
  time.advance(0.3);
  EXPECT_EQ(log(), (Lines{"kept"}));
}

TEST_F(UIAlertControllerTest, WithoutActionsGoingBackClosesNothing) {
  const auto alert = presentWithoutActions();
  EXPECT_TRUE(alert->goBack());
  time.advance(1);
  EXPECT_TRUE(isPresented());
}

TEST_F(UIAlertControllerTest, WithoutACancelActionGoingBackClosesNothing) {
  const auto alert =
      makeViewController<UIAlertController>("Done", std::nullopt, UIAlertControllerStyle::alert);
  alert->addAction({"Fine", UIAlertActionStyle::normal, noted("fine")});
  a->presentViewController(alert, false);
  EXPECT_TRUE(window.goBack());
  time.advance(1);
  EXPECT_TRUE(isPresented());
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(UIAlertControllerTest, TheProgramClosesItWithoutAnyHandler) {
  present();
  a->dismissViewController(true);
  time.advance(0.3);
  EXPECT_FALSE(isPresented());
  EXPECT_EQ(log(), (Lines{}));
}

TEST_F(UIAlertControllerTest, AHandlerMayPresentTheNextAlert) {
  const auto alert =
      makeViewController<UIAlertController>("One", std::nullopt, UIAlertControllerStyle::alert);
  alert->addAction({"Next", UIAlertActionStyle::normal, [this] { present(); }});
  a->presentViewController(alert, false);
  alert->choose(0);
  time.advance(0.3);
  EXPECT_TRUE(isPresented());
  EXPECT_NE(a->presentedViewController(), alert);
}

TEST_F(UIAlertControllerTest, IsReleasedWhenItHasGone) {
  auto alert = present();
  const std::weak_ptr<UIViewController> gone = alert;
  alert->choose(0);
  alert.reset();
  time.advance(0.3);
  EXPECT_TRUE(gone.expired());
}

}  // namespace
}  // namespace kindora
