// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The card of an alert, as view records: texts and text fields that scroll, the caller's content
// and the buttons, on a panel in the middle of the view that it is added to.
//
//   const auto card = QavAlertControllerView::withTitle(title, message);
//   card->setVisualStyle(style);
//   card->setActions(actions);
//   card->setActionLayout(QavAlertActionLayout::automatic);  // counts the actions
//   view->addSubview(card);
//   card->prepareForDisplay();
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "alerts/card/QavActionsCollectionView.h"
#include "alerts/card/QavAlertAction.h"
#include "alerts/card/QavAlertActionLayout.h"
#include "alerts/card/QavAlertControllerCollectionViewFlowLayout.h"
#include "alerts/card/QavAlertControllerScrollView.h"
#include "alerts/card/QavAlertControllerViewDelegate.h"
#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "alerts/helpers/QavIntrinsicallySizedView.h"
#include "platform/NSAttributedString.h"
#include "platform/Subscription.h"
#include "toolkit/view/UIVisualEffectView.h"

namespace kindora {

inline constexpr const char* kQavAlertControllerCellReuseIdentifier =
    "QavAlertControllerCellReuseIdentifier";

class QavAlertControllerView final : public UIView,
                                     public QavActionsCollectionViewDataSource,
                                     public UICollectionViewDelegateFlowLayout {
 public:
  using VisualStyleRef = std::shared_ptr<const QavAlertControllerVisualStyle>;

  /// With the default style, which any other replaces before the card is prepared.
  [[nodiscard]] static std::shared_ptr<QavAlertControllerView> withTitle(
      const std::optional<NSAttributedString>& title,
      const std::optional<NSAttributedString>& message);

  void setDelegate(std::weak_ptr<QavAlertControllerViewDelegate> delegate);

  [[nodiscard]] const std::optional<NSAttributedString>& title() const;
  void setTitle(const std::optional<NSAttributedString>& title);
  [[nodiscard]] const std::optional<NSAttributedString>& message() const;
  void setMessage(const std::optional<NSAttributedString>& message);
  [[nodiscard]] const std::vector<QavAlertActionRef>& actions() const { return actions_; }
  void setActions(std::vector<QavAlertActionRef> actions);
  [[nodiscard]] QavAlertActionLayout actionLayout() const { return actionLayout_; }
  /// Decides on the buttons' direction by the number of actions at this moment.
  void setActionLayout(QavAlertActionLayout layout);
  [[nodiscard]] const VisualStyleRef& visualStyle() const { return visualStyle_; }
  void setVisualStyle(VisualStyleRef style);
  /// Null until it is set. Shown when it has subviews as the card is prepared.
  [[nodiscard]] const std::shared_ptr<QavIntrinsicallySizedView>& contentView() const {
    return contentView_;
  }
  void setContentView(std::shared_ptr<QavIntrinsicallySizedView> view);
  /// Puts the fields below the message.
  void showTextFieldView(std::shared_ptr<QavAlertTextFieldTableView> view);

  /// Puts the card together. Called once, in the view that it is to fill.
  void prepareForDisplay();

  // --- Its parts ---
  [[nodiscard]] const std::shared_ptr<UIVisualEffectView>& visualEffectView() const {
    return visualEffectView_;
  }
  [[nodiscard]] const std::shared_ptr<QavAlertControllerScrollView>& scrollView() const {
    return scrollView_;
  }
  [[nodiscard]] const std::shared_ptr<QavActionsCollectionView>& actionsCollectionView() const {
    return actionsCollectionView_;
  }
  [[nodiscard]] const std::shared_ptr<QavAlertControllerCollectionViewFlowLayout>&
  collectionViewLayout() const {
    return collectionViewLayout_;
  }
  /// Null until the card is prepared.
  [[nodiscard]] const NSLayoutConstraintRef& maximumHeightConstraint() const {
    return maximumHeightConstraint_;
  }
  /// What the superview leaves for texts and text fields above the buttons, in points.
  [[nodiscard]] double maximumScrollViewHeight() const;
  /// In points.
  [[nodiscard]] double actionsCollectionViewHeight() const;

  // --- What the collection of buttons asks ---
  [[nodiscard]] int collectionViewNumberOfItemsInSection(int section) override;
  [[nodiscard]] std::shared_ptr<QavCollectionReusableView> collectionViewCellForItemAtIndexPath(
      IndexPath path) override;
  [[nodiscard]] CGSize collectionViewLayoutSizeForItemAtIndexPath(
      const UICollectionView& collectionView, IndexPath path) override;
  [[nodiscard]] bool collectionViewLayoutHasUniformItemSizeInSection(
      const UICollectionView& collectionView, int section) override;
  [[nodiscard]] double collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;
  [[nodiscard]] double collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;
  [[nodiscard]] UIEdgeInsets collectionViewLayoutInsetForSectionAtIndex(
      const UICollectionView& collectionView, int section) override;

 protected:
  void layoutSubviews() override;

 private:
  QavAlertControllerView();
  void build();
  void announce();
  void observeActions();
  void actionDidChange(const QavAlertAction& action);
  void addScrollView();
  [[nodiscard]] UIViewRef addContentView();
  void addActionsCollectionView(const UIViewRef& elementAbove);
  void addVisualEffectView();
  void actionViewTapped(const UIView& cell);
  [[nodiscard]] bool wantsOneRow() const;
  [[nodiscard]] bool isHorizontal() const;  // as it was decided

  std::weak_ptr<QavAlertControllerViewDelegate> delegate_;
  std::vector<QavAlertActionRef> actions_;
  QavAlertActionLayout actionLayout_ = QavAlertActionLayout::automatic;
  VisualStyleRef visualStyle_;
  std::shared_ptr<QavIntrinsicallySizedView> contentView_;
  std::shared_ptr<UIVisualEffectView> visualEffectView_;
  std::shared_ptr<QavAlertControllerScrollView> scrollView_;
  std::shared_ptr<QavAlertControllerCollectionViewFlowLayout> collectionViewLayout_;
  std::shared_ptr<QavActionsCollectionView> actionsCollectionView_;
  NSLayoutConstraintRef maximumHeightConstraint_;
  std::vector<Subscription> enabledSubscriptions_;
};

}  // namespace kindora
