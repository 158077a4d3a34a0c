// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "Alerts.h"

#include <memory>
#include <optional>
#include <utility>

#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/helpers/QavAutoLayout.h"

using namespace kindora;

namespace {

class RoundStyle final : public QavAlertControllerDefaultVisualStyle {
 public:
  [[nodiscard]] double cornerRadius() const override { return 20; }
  [[nodiscard]] UIColor textColorForAction(const QavAlertAction& /*action*/) const override {
    return {0.2, 0.5, 0.3, 1};
  }
};

}  // namespace

QavAlertControllerRef askForName(std::function<void(const std::string& name)> answer) {
  const auto alert = QavAlertController::alertControllerWithTitle("Who plays?", std::nullopt,
                                                                  QavAlertControllerStyle::alert);
  alert->setVisualStyle(std::make_shared<RoundStyle>());
  alert->addTextFieldWithConfigurationHandler(
      [](UITextField& field) { field.setPlaceholder("Name"); });

  const auto picture = std::make_shared<UIView>();
  picture->setTranslatesAutoresizingMaskIntoConstraints(false);
  picture->setBackgroundColor({0.29, 0.5, 0.71, 1});
  alert->contentView()->addSubview(picture);
  qav_pinSize(picture, {120, 60});
  qav_horizontallyCenterInSuperview(picture);
  qav_alignEdgesWithSuperview(picture, UIRectEdge::top | UIRectEdge::bottom);

  alert->addAction(QavAlertAction::actionWithTitle("Nobody", QavAlertActionStyle::cancel));
  const auto field = alert->textFields().front();
  alert->addAction(QavAlertAction::actionWithTitle(
      "Play", QavAlertActionStyle::standard,
      [field, answer = std::move(answer)](QavAlertAction&) { answer(field->text()); }));
  return alert;
}

std::shared_ptr<QavAlertView> say(const std::string& what,
                                  std::function<void(int buttonIndex)> answer) {
  const auto alert =
      QavAlertView::alertWithTitleMessageButtons(what, std::nullopt, {"Later", "OK"});
  alert->showWithDismissHandler(std::move(answer));
  return alert;
}
