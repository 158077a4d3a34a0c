// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/alerts/LegacyAlertDemos.h"

#include <memory>
#include <string>

#include "alerts/legacy/QavAlertView.h"
#include "alerts/qt/QavAlertController.h"

namespace kindora {
namespace {

using AlertViewRef = std::shared_ptr<QavAlertView>;

// The title of a button. The view is told weakly, since it keeps the handlers that ask.
std::string titleOfButton(const std::weak_ptr<QavAlertView>& alert, int index) {
  const AlertViewRef shown = alert.lock();
  return shown ? shown->buttonTitleAtIndex(index).value_or("") : std::string();
}

void tellButton(const AlertViewRef& alert, const AlertStage& stage) {
  alert->didDismissHandler = [tell = stage.tell, weakly = std::weak_ptr(alert)](int index) {
    tell("You chose " + titleOfButton(weakly, index) + ".");
  };
}

void showTwoButtons(const AlertStage& stage) {
  const auto alert = QavAlertView::alertWithTitleMessageButtons(
      "Send the challenge?", "Your friend gets it at once.", {"Cancel", "Send"});
  tellButton(alert, stage);
  alert->show();
}

// The controller hands what it holds to a legacy alert.
void showFiveButtons(const AlertStage& stage) {
  const auto alert = QavAlertController::alertControllerWithTitle(
      "How was it?", "Five buttons of a controller.", QavAlertControllerStyle::legacy);
  for (const char* title : {"Cancel", "Lovely", "Good", "So-so", "Odd"}) {
    alert->addAction(QavAlertAction::actionWithTitle(
        title, QavAlertActionStyle::standard,
        [tell = stage.tell, name = std::string(title)](QavAlertAction&) {
          tell("You chose " + name + ".");
        }));
  }
  alert->presentWithCompletion();
}

void showLogin(const AlertStage& stage) {
  const auto alert = QavAlertView::alertWithTitleMessageButtons(
      "Log in", "With fields of the alert's own.", {"Cancel", "Log in"});
  alert->setAlertViewStyle(QavAlertViewStyle::loginAndPasswordInput);
  alert->didDismissHandler = [tell = stage.tell, weakly = std::weak_ptr(alert)](int index) {
    const AlertViewRef shown = weakly.lock();
    if (!shown || index != shown->firstOtherButtonIndex()) {
      tell("You chose " + titleOfButton(weakly, index) + ".");
      return;
    }
    const bool secret = !shown->textFieldAtIndex(1)->text().empty();
    tell("You logged in as " + shown->textFieldAtIndex(0)->text() +
         (secret ? " with a password." : " without a password."));
  };
  alert->show();
}

// Each takes the place of the one before, and gives it back as it goes.
void showQueue(const AlertStage& stage) {
  for (const char* title : {"First", "Second", "Third"}) {
    const auto alert = QavAlertView::alertWithTitleMessageButtons(
        title, "One of three that were shown in one go.", {"Next"});
    alert->didDismissHandler = [tell = stage.tell, name = std::string(title)](int) {
      tell(name + " has gone.");
    };
    alert->show();
  }
}

void showOneOverAnother(const AlertStage& stage) {
  const auto below = QavAlertView::alertWithTitleMessageButtons(
      "Below", "More shows another alert in its place.", {"Close", "More"});
  tellButton(below, stage);
  below->shouldDismissHandler = [stage, moreIndex = below->firstOtherButtonIndex()](int index) {
    if (index != moreIndex) return true;
    const auto above = QavAlertView::alertWithTitleMessageButtons(
        "Above", "The other one comes back after this.", {"Back"});
    tellButton(above, stage);
    above->show();
    return false;
  };
  below->show();
}

}  // namespace

AlertDemoSection legacyAlertDemos() {
  return {"Legacy alerts",
          {{"Legacy, two buttons", "Side by side", showTwoButtons},
           {"Legacy, five buttons", "Asked for by a controller", showFiveButtons},
           {"Legacy, login fields", "A name and a password", showLogin},
           {"Three in a queue", "Shown in one go, answered in turn", showQueue},
           {"One over another", "The lower one comes back", showOneOverAnother}}};
}

}  // namespace kindora
