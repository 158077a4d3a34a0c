// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "alerts/card/QavAlertCollectionViewCell.h"
#include "alerts/card/QavAlertControllerView.h"
#include "platform/fakes/FakeViewServices.h"
#include "toolkit/view/LayoutEngine.h"
#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {

inline constexpr auto kHorizontal = QavAlertActionLayout::horizontal;
inline constexpr auto kVertical = QavAlertActionLayout::vertical;

/// A card in a window of 320 x 480 points. A line of the title takes 21.25 points and 28
/// characters, one of the message 16.25 points and 36 characters.
class CardFixture {
 protected:
  struct Delegate final : QavAlertControllerViewDelegate {
    void alertControllerViewDidPerformAction(QavAlertControllerView& alertView,
                                             const QavAlertActionRef& didPerformAction) override {
      card = &alertView;
      performed.push_back(didPerformAction);
    }
    QavAlertControllerView* card = nullptr;
    std::vector<QavAlertActionRef> performed;
  };

  CardFixture() {
    window->setFrame({{0, 0}, {320, 480}});
    LayoutEngine::leftOut() = [](const NSLayoutConstraint& constraint) {
      ADD_FAILURE() << "left out: " << constraint.description();
    };
    make("Title", "Message");
  }
  ~CardFixture() { LayoutEngine::leftOut() = {}; }

  static std::optional<NSAttributedString> attributed(const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    return NSAttributedString(*text);
  }
  void make(const std::optional<std::string>& title, const std::optional<std::string>& message) {
    card = QavAlertControllerView::withTitle(attributed(title), attributed(message));
    card->setDelegate(delegate);
  }
  /// With that many actions, which are called "0", "1" and so on.
  void show(int count, QavAlertActionLayout layout = QavAlertActionLayout::automatic) {
    for (int i = 0; i < count; ++i) {
      actions.push_back(
          QavAlertAction::actionWithTitle(std::to_string(i), QavAlertActionStyle::standard));
    }
    showActions(layout);
  }
  void showActions(QavAlertActionLayout layout = QavAlertActionLayout::automatic) {
    card->setActions(actions);
    card->setActionLayout(layout);
    window->addSubview(card);
    card->prepareForDisplay();
    window->layoutIfNeeded();
  }

  [[nodiscard]] std::shared_ptr<QavAlertCollectionViewCell> button(int index) const {
    return std::static_pointer_cast<QavAlertCollectionViewCell>(
        card->actionsCollectionView()->cellForItemAtIndexPath({0, index}));
  }
  [[nodiscard]] std::vector<CGRect> buttonFrames() const {
    std::vector<CGRect> frames;
    for (int i = 0; button(i); ++i) frames.push_back(button(i)->frame());
    return frames;
  }
  /// As whoever draws the view does it.
  static void tap(UIView& view) {
    const auto recognizer = view.tapGestureRecognizer();
    if (!recognizer || !recognizer->enabled) return;
    recognizer->action(view);
  }

  const FakeViewServices fakes = installFakeViewServices();
  const UIViewRef window = std::make_shared<UIView>();
  const std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
  std::shared_ptr<QavAlertControllerView> card;
  std::vector<QavAlertActionRef> actions;
};

}  // namespace kindora
