// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/alerts/CardAlertDemos.h"

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "alerts/qt/QavAlertController.h"
#include "platform/services/Services.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {
namespace {

using Style = QavAlertActionStyle;

QavAlertControllerRef makeAlert(const std::string& title, const std::string& message) {
  return QavAlertController::alertControllerWithTitle(title, message,
                                                      QavAlertControllerStyle::alert);
}

// A button whose choice is told on the page.
QavAlertActionRef answer(const AlertStage& stage, const std::string& title,
                         Style style = Style::standard) {
  return QavAlertAction::actionWithTitle(title, style, [tell = stage.tell, title](QavAlertAction&) {
    tell("You chose " + title + ".");
  });
}

void showOneAction(const AlertStage& stage) {
  const auto alert = makeAlert("Badge earned", "Somebody smiled because of you.");
  alert->addAction(answer(stage, "OK", Style::cancel));
  alert->presentWithCompletion();
}

void showTwoActions(const AlertStage& stage) {
  const auto alert = makeAlert("Delete this challenge?", "It cannot be brought back.");
  alert->addAction(answer(stage, "Keep", Style::cancel));
  alert->addAction(answer(stage, "Delete", Style::destructive));
  alert->presentWithCompletion();
}

void showThreeActions(const AlertStage& stage) {
  const auto alert = makeAlert("Save the picture?", "It was taken with the camera.");
  alert->addAction(answer(stage, "Save"));
  alert->addAction(answer(stage, "Save a copy"));
  alert->addAction(answer(stage, "Cancel", Style::cancel));
  alert->presentWithCompletion();
}

void showTwoStacked(const AlertStage& stage) {
  const auto alert = makeAlert("Go on with the challenge?", "There is no hurry.");
  alert->setActionLayout(QavAlertActionLayout::vertical);
  alert->addAction(answer(stage, "Go on with it now"));
  alert->addAction(answer(stage, "Later", Style::cancel));
  alert->presentWithCompletion();
}

void showFourInARow(const AlertStage& stage) {
  const auto alert = makeAlert("Which way?", "The row of buttons scrolls sideways.");
  alert->setActionLayout(QavAlertActionLayout::horizontal);
  for (const char* direction : {"North", "East", "South", "West"}) {
    alert->addAction(answer(stage, direction));
  }
  alert->presentWithCompletion();
}

void showFiveActions(const AlertStage& stage) {
  const auto alert = makeAlert("Whom do you send it to?", "Somebody who could do with a smile.");
  for (const char* friendsName : {"Bob", "Carl", "Dora", "Emma"}) {
    alert->addAction(answer(stage, friendsName));
  }
  alert->addAction(answer(stage, "Nobody", Style::cancel));
  alert->presentWithCompletion();
}

void showTextFields(const AlertStage& stage) {
  const auto alert = makeAlert("Sign in", "OK can be pressed once there is a name.");
  const auto name = std::make_shared<std::weak_ptr<UITextField>>();
  const auto password = std::make_shared<std::weak_ptr<UITextField>>();
  const auto signIn = QavAlertAction::actionWithTitle(
      "OK", Style::standard, [tell = stage.tell, name, password](QavAlertAction&) {
        const auto typedName = name->lock();
        const auto typedPassword = password->lock();
        if (!typedName || !typedPassword) return;
        tell("You signed in as " + typedName->text() +
             (typedPassword->text().empty() ? " without a password." : " with a password."));
      });
  signIn->setEnabled(false);
  alert->addTextFieldWithConfigurationHandler([name, signIn](UITextField& field) {
    *name = std::static_pointer_cast<UITextField>(field.shared_from_this());
    field.setPlaceholder("Name");
    field.editingChanged = [signIn](UITextField& edited) {
      signIn->setEnabled(!edited.text().empty());
    };
  });
  alert->addTextFieldWithConfigurationHandler([password](UITextField& field) {
    *password = std::static_pointer_cast<UITextField>(field.shared_from_this());
    field.setPlaceholder("Password");
    field.setSecureTextEntry(true);
  });
  alert->addAction(answer(stage, "Cancel", Style::cancel));
  alert->addAction(signIn);
  alert->presentWithCompletion();
}

// A picture with a row of bars beside it, as wide as an alert.
UIViewRef makeChart() {
  constexpr double kHeight = 84;
  constexpr double kBarWidth = 20;
  constexpr std::array kBars{0.35, 0.6, 0.45, 0.8, 1.0};
  auto chart = std::make_shared<UIView>();
  chart->setFrame({{0, 0}, {270, kHeight + 16}});
  chart->setAccessibility(UIAccessibilityRole::staticText, "Kind deeds from Monday to Friday");
  const auto picture = std::make_shared<UIImageView>();
  picture->setImage(services().bundle->imageNamed("galleryAlerts"));
  picture->setFrame({{24, 0}, {kHeight, kHeight}});
  picture->setCornerRadius(14);
  picture->setClipsToBounds(true);
  chart->addSubview(picture);
  for (std::size_t i = 0; i < kBars.size(); ++i) {
    const auto bar = std::make_shared<UIView>();
    const double height = kBars[i] * kHeight;
    bar->setFrame(
        {{128 + static_cast<double>(i) * (kBarWidth + 6), kHeight - height}, {kBarWidth, height}});
    bar->setCornerRadius(5);
    const double share = static_cast<double>(i) / (kBars.size() - 1);
    bar->setBackgroundColor({0.29 + 0.66 * share, 0.71 - 0.1 * share, 0.61 - 0.35 * share, 1});
    chart->addSubview(bar);
  }
  return chart;
}

void showContent(const AlertStage& stage) {
  const auto alert = makeAlert("Your week", "The picture and the bars are the program's own.");
  alert->contentView()->addSubview(makeChart());
  alert->addAction(answer(stage, "Lovely", Style::cancel));
  alert->presentWithCompletion();
}

void showDisabledAction(const AlertStage& stage) {
  const auto alert = makeAlert("What shall happen to it?", "The grey button does nothing.");
  const auto archive = answer(stage, "Archive");
  archive->setEnabled(false);
  alert->addAction(archive);
  alert->addAction(answer(stage, "Delete", Style::destructive));
  alert->addAction(answer(stage, "Cancel", Style::cancel));
  alert->presentWithCompletion();
}

void showVeto(const AlertStage& stage) {
  const auto alert = makeAlert("Are you ready?", "Not yet leaves the alert open.");
  const auto notYet = answer(stage, "Not yet");
  alert->addAction(notYet);
  alert->addAction(answer(stage, "Ready", Style::cancel));
  alert->shouldDismissBlock = [notYet, times = 0,
                               weakly = std::weak_ptr(alert)](QavAlertAction& chosen) mutable {
    if (&chosen != notYet.get()) return true;
    ++times;
    if (const auto open = std::static_pointer_cast<QavAlertController>(weakly.lock())) {
      open->setMessage("Asked " + std::to_string(times) + (times == 1 ? " time." : " times.") +
                       " Take the time you need.");
    }
    return false;
  };
  alert->presentWithCompletion();
}

void showLongText(const AlertStage& stage) {
  constexpr int kPresents = 40;
  std::string song;
  for (int left = kPresents; left > 0; --left) {
    if (!song.empty()) song += "\n\n";
    song += std::to_string(left) + (left == 1 ? " present stands" : " presents stand") +
            " on the table. One is given away, and somebody laughs.";
  }
  const auto alert = makeAlert("Forty presents", song);
  alert->addAction(answer(stage, "Stop", Style::cancel));
  alert->addAction(answer(stage, "Sing"));
  alert->presentWithCompletion();
}

void showAttributedTexts(const AlertStage& stage) {
  constexpr UIColor kOrange{0.85, 0.4, 0.05, 1};
  constexpr UIColor kGreen{0.13, 0.45, 0.05, 1};
  NSAttributedString title("A ");
  title.append("warm", {.foregroundColor = kOrange}).append(" welcome");
  NSAttributedString message("Some words are ");
  message.append("bold", {.font = UIFont::boldSystemFontOfSize(13)})
      .append(", some are ")
      .append("green", {.foregroundColor = kGreen})
      .append(", and some are ")
      .append("large", {.font = UIFont::systemFontOfSize(20)})
      .append(".");
  const auto alert = QavAlertController::alertControllerWithAttributedTitle(
      title, message, QavAlertControllerStyle::alert);
  NSAttributedString thanks("Thank you ");
  thanks.append("very much", {.font = UIFont::boldSystemFontOfSize(17), .foregroundColor = kGreen});
  alert->addAction(QavAlertAction::actionWithAttributedTitle(
      thanks, Style::cancel,
      [tell = stage.tell](QavAlertAction&) { tell("You chose Thank you very much."); }));
  alert->presentWithCompletion();
}

}  // namespace

AlertDemoSection cardAlertDemos() {
  return {"Alerts",
          {{"One action", "A message and a button", showOneAction},
           {"Two actions", "Side by side", showTwoActions},
           {"Three actions", "One below another", showThreeActions},
           {"Two actions, stacked", "The layout is chosen", showTwoStacked},
           {"Four actions in a row", "Wider than the alert", showFourInARow},
           {"Five actions", "One below another", showFiveActions},
           {"Text fields", "A button waits for a name", showTextFields},
           {"Content of its own", "A picture and bars", showContent},
           {"Disabled and destructive", "A grey and a red button", showDisabledAction},
           {"Veto", "Stays open until you are ready", showVeto},
           {"Long text", "Scrolls above its buttons", showLongText},
           {"Attributed texts", "Fonts and colours in one line", showAttributedTexts}}};
}

}  // namespace kindora
