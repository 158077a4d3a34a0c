// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <memory>

#include "alerts/card/QavAlertAction.h"
#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/card/QavAlertControllerView.h"
#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/legacy/QavAlertView.h"
#include "alerts/legacy/VisualFormat.h"
#include "platform/fakes/FakeViewServices.h"

namespace kindora {
namespace {

UIViewRef placedIn(const UIViewRef& superview) {
  const auto view = std::make_shared<UIView>();
  view->setTranslatesAutoresizingMaskIntoConstraints(false);
  superview->addSubview(view);
  return view;
}

class AlertsExamples : public ::testing::Test {
 protected:
  AlertsExamples() { installFakeViewServices(); }
};

TEST_F(AlertsExamples, AnActionThatIsWatched) {
#include "examples/alerts/card/QavAlertAction.h.1"
  EXPECT_FALSE(keep->isEnabled());
}

TEST_F(AlertsExamples, ACardIsPutTogether) {
  const NSAttributedString title("Who plays?");
  const NSAttributedString message("One of you.");
  const auto style = std::make_shared<QavAlertControllerDefaultVisualStyle>();
  const std::vector actions{QavAlertAction::actionWithTitle("Nobody", QavAlertActionStyle::cancel)};
  const auto view = std::make_shared<UIView>();
#include "examples/alerts/card/QavAlertControllerView.h.1"
  EXPECT_EQ(card->superview(), view);
}

TEST_F(AlertsExamples, HelpersReturnWhatTheyMake) {
  const auto superview = std::make_shared<UIView>();
  const auto label = placedIn(superview);
#include "examples/alerts/helpers/QavAutoLayout.h.1"
  EXPECT_EQ(height->constant(), 300);
}

TEST_F(AlertsExamples, APageIsLaidOut) {
  const auto page = std::make_shared<UIView>();
  page->setFrame({{0, 0}, {320, 480}});
  const auto panel = placedIn(page);
  const auto picture = placedIn(panel);
  const auto text = placedIn(panel);
#include "examples/docs/alerts.md.5"
  page->layoutIfNeeded();
  EXPECT_EQ(panel->frame(), (CGRect{{10, 190}, {300, 100}}));
}

TEST_F(AlertsExamples, AFormatThatIsRead) {
  const auto read = parseVisualFormat(
#include "examples/alerts/legacy/VisualFormat.h.1.text"
      , {{"topSpace", 19}});
  EXPECT_TRUE(std::holds_alternative<std::vector<VisualFormatConstraint>>(read));
}

// Compiled alone: a window is needed to show them.
[[maybe_unused]] void alertViews(const std::string& what) {
  {
#include "examples/alerts/legacy/QavAlertView.h.1"
  } {
#include "examples/docs/alerts.md.4"
  }
}

}  // namespace
}  // namespace kindora
