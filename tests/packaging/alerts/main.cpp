// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <iostream>
#include <memory>
#include <string_view>

#include "alerts/card/QavAlertAction.h"
#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/legacy/QavAlertViewCoordinator.h"
#include "toolkit/view/UIView.h"

using namespace kindora;

namespace {

UIViewRef placedIn(const UIViewRef& superview) {
  auto view = std::make_shared<UIView>();
  view->setTranslatesAutoresizingMaskIntoConstraints(false);
  superview->addSubview(view);
  return view;
}

void write(std::string_view name, const UIView& view) {
  const CGRect frame = view.frame();
  std::cout << name << ' ' << frame.origin.x << ' ' << frame.origin.y << ' ' << frame.size.width
            << ' ' << frame.size.height << '\n';
}

// The look of alerts with a wider card.
class WideStyle final : public QavAlertControllerDefaultVisualStyle {
 public:
  [[nodiscard]] double width() const override { return 300; }
};

// A page has a panel of 200 x 100 in its middle, and in the panel a picture with a text beside it.
void layOut() {
  const auto page = std::make_shared<UIView>();
  page->setFrame({{0, 0}, {320, 480}});
  const auto panel = placedIn(page);
  const auto picture = placedIn(panel);
  const auto text = placedIn(panel);

  qav_centerInSuperview(panel);
  const NSLayoutConstraints size = qav_pinSize(panel, {200, 100});
  qav_alignEdgesWithSuperview(picture, UIRectEdge::top | UIRectEdge::left, {.top = 10, .left = 10});
  qav_pinSize(picture, {40, 40});
  qav_pinHorizontalSpacing(text, 8, picture);
  qav_alignEdge(text, UIRectEdge::right, panel, -10);
  qav_alignVerticalCenterWithView(text, picture);
  qav_pinHeightToHeightOfView(text, picture, -10);

  const auto writeAll = [&] {
    page->layoutIfNeeded();
    write("panel", *panel);
    write("picture", *picture);
    write("text", *text);
  };
  writeAll();
  size.front()->setConstant(300);
  writeAll();
}

// Whoever shows an alert's buttons hears which of them can be chosen, and has the chosen one
// handled.
void choose() {
  const auto action = QavAlertAction::actionWithTitle(
      "Delete", QavAlertActionStyle::destructive,
      [](QavAlertAction& chosen) { std::cout << "chosen: " << *chosen.title() << '\n'; });
  const auto watch = action->observeEnabled([](QavAlertAction& changed) {
    std::cout << *changed.title() << (changed.isEnabled() ? " can" : " cannot") << " be chosen\n";
  });
  action->setEnabled(false);
  action->setEnabled(true);
  action->handler()(*action);
}

}  // namespace

int main() {
  layOut();
  choose();
  std::cout << "a card of " << WideStyle().width() << " points\n";
  const QavAlertViewCoordinator coordinator(
      {.keyWindow = [] { return nullptr; }, .makeAlertWindow = {}});
  std::cout << coordinator.alerts().size() << " alerts on the screen\n";
}
