// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "model/Challenge.h"
#include "screens/badges/BadgesDataSourceDelegate.h"
#include "toolkit/controllers/CollectionView.h"
#include "toolkit/controllers/UIViewController.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// The second tab: a grid with a badge for each challenge that was completed or created, rebuilt
/// from the store each time it appears. Here lands a challenge that another screen wants to be
/// passed on at once.
class BadgesViewController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(kindora::CollectionView* collectionView READ shownCollectionView CONSTANT)

 public:
  BadgesViewController();

  std::weak_ptr<UILabel> emptyLabel;
  /// Places the badges; outlives the view that it lays out.
  const std::unique_ptr<BelSpringyCollectionViewFlowLayout> bouncyFlowLayout;
  const std::unique_ptr<CollectionView> collectionView;
  const std::unique_ptr<BadgesDataSourceDelegate> dataSourceDelegate;

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;
  /// Before the page is laid out in another size.
  Q_INVOKABLE void viewWillLayoutSubviews();
  void viewWillAppear(bool animated) override;
  void viewDidAppear(bool animated) override;
  void prepareForSegue(const UIStoryboardSegue& segue, const std::any& sender) override;

  [[nodiscard]] const ChallengeRef& challengeToPassOn() const { return challengeToPassOn_; }
  /// Shows, whatever this tab shows, the challenge's badge and above it the picker of friends.
  void setChallengeToPassOn(const ChallengeRef& challenge);

  /// Where the screens of a badge come back to.
  void unwindToBadges(const UIStoryboardSegue& /*segue*/) {}

 private:
  [[nodiscard]] CollectionView* shownCollectionView() const { return collectionView.get(); }
  void passOnAtOnce();

  ChallengeRef challengeToPassOn_;
};

}  // namespace kindora
