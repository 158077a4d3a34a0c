// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What Main.qml draws: a cover to scratch, a ball on a spring, and a grid.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <memory>
#include <vector>

#include "effects/keyframes/TovSpringAnimation.h"
#include "effects/qt/LayerAnimations.h"
#include "effects/scratch/JxScratchImageView.h"
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "toolkit/controllers/CollectionView.h"
#include "toolkit/view/OutletOwner.h"

/// Its views are found by the names that QML gives to their outlets.
class Game : public QObject, public kindora::OutletOwner {
  Q_OBJECT
  QML_ELEMENT
  /// How much of the cover is gone, in [0, 1].
  Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
  Q_PROPERTY(kindora::CollectionView* grid READ grid CONSTANT)
  /// The cell that was pressed last; -1 for none.
  Q_PROPERTY(int chosen MEMBER chosen_ NOTIFY chosenChanged)

 public:
  Game() {
    connectOutlet(cover_, "cover", *views_);
    connectOutlet(ball_, "ball", *views_);
    const std::vector<kindora::Rgba8> grey(320 * 160, kindora::Rgba8{120, 130, 140, 255});
    cover_.lock()->setImage(kindora::UIImage::imageWithRaster(kindora::Raster(320, 160, grey)), 16);
    cover_.lock()->setDelegate(listener_);
    layout_.setItemSize({50, 50});
    grid_.registerCell("cell", [] { return std::make_shared<kindora::UICollectionViewCell>(); });
    grid_.setDataSource(&source_);
  }

  [[nodiscard]] std::shared_ptr<kindora::UIView> outlet(std::string_view name) override {
    return views_->viewWithName(name);
  }
  [[nodiscard]] double progress() const { return cover_.lock()->maskingProgress(); }
  [[nodiscard]] kindora::CollectionView* grid() { return &grid_; }

  /// Lets the ball swell to its size, and beyond it at first.
  Q_INVOKABLE void swell() {
    using kindora::NSValue;
    kindora::TovSpringAnimation spring;
    spring.setDamping(5);
    spring.setFromValue(
        NSValue::valueWithCATransform3D(kindora::CATransform3DMakeScale(0.25, 0.25, 1)));
    spring.setToValue(NSValue::valueWithCATransform3D(kindora::CATransform3DIdentity));
    spring.setDuration(spring.durationForEpsilon(0.05));
    spring.setDelegate(listener_);
    addAnimation(ball_.lock(), spring, "transform");
  }

 signals:
  void progressChanged();
  void swollen();
  void chosenChanged();

 private:
  // Hears of scratches and of the ball.
  class Listener final : public kindora::JxScratchImageViewDelegate,
                         public kindora::CAAnimationDelegate {
   public:
    explicit Listener(Game& game) : game_(game) {}
    void jxScratchImageView(kindora::JxScratchImageView& /*view*/, double /*progress*/) override {
      emit game_.progressChanged();
    }
    void animationDidStop(kindora::CAKeyframeAnimation& /*animation*/, bool finished) override {
      if (finished) emit game_.swollen();
    }

   private:
    Game& game_;
  };

  // A thousand cells.
  class Source final : public kindora::UICollectionViewDataSource {
   public:
    explicit Source(Game& game) : game_(game) {}
    int numberOfSectionsInCollectionView() override { return 1; }
    int collectionViewNumberOfItemsInSection(int /*section*/) override { return 1000; }
    kindora::UICollectionViewCellRef collectionViewCellForItemAtIndexPath(
        kindora::IndexPath /*path*/) override {
      return game_.grid_.dequeueReusableCell("cell");
    }
    void collectionViewDidSelectItemAtIndexPath(kindora::IndexPath path) override {
      game_.chosen_ = path.row;
      emit game_.chosenChanged();
    }

   private:
    Game& game_;
  };

  const std::shared_ptr<kindora::UIView> views_ = std::make_shared<kindora::UIView>();
  std::weak_ptr<kindora::JxScratchImageView> cover_;
  std::weak_ptr<kindora::UIView> ball_;
  const std::shared_ptr<Listener> listener_ = std::make_shared<Listener>(*this);
  kindora::BelSpringyCollectionViewFlowLayout layout_;
  kindora::CollectionView grid_{layout_};
  Source source_{*this};
  int chosen_ = -1;
};
