// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QQmlContext>
#include <QQmlPropertyMap>

#include "effects/scratch/JxScratchImageView.h"
#include "effects/springy/BelSpringyCollectionViewFlowLayout.h"
#include "tests/docs/QmlExample.h"
#include "toolkit/controllers/CollectionView.h"

namespace kindora {
namespace {

class EffectsQtExamples : public QmlExample {
 protected:
  void load(QObject& game, const QByteArray& example) {
    engine.rootContext()->setContextProperty(QStringLiteral("game"), &game);
    show(
        "import QtQuick\nimport Kindora.Effects\nimport Kindora.Toolkit.Hosts\n"
        "import Kindora.Toolkit.Quick\nItem {\n width: 100; height: 100\n" +
        example + "}");
  }
};

#include "examples/docs/effects.md.3"

TEST_F(EffectsQtExamples, ACoverOfAnOwner) {
  Game game;
  load(game,
#include "examples/docs/effects.md.2.text"
  );
  EXPECT_EQ(game.outlet("cover")->frame().size, (CGSize{320, 160}));
}

TEST_F(EffectsQtExamples, AView) {
  Owner game;
  const auto ball = game.make<UIView>("ball");
  load(game,
#include "examples/docs/effects.md.5.text"
  );
}

// A cell.
class Source final : public UICollectionViewDataSource {
 public:
  explicit Source(CollectionView*& grid) : grid_(grid) {}
  int numberOfSectionsInCollectionView() override { return 1; }
  int collectionViewNumberOfItemsInSection(int) override { return 1; }
  UICollectionViewCellRef collectionViewCellForItemAtIndexPath(IndexPath) override {
    return grid_->dequeueReusableCell("cell");
  }

 private:
  CollectionView*& grid_;
};

TEST_F(EffectsQtExamples, AGrid) {
  CollectionView* grid = nullptr;
  Source source_(grid);
#include "examples/docs/effects.md.7"
  grid = &grid_;
  QQmlPropertyMap game;
  game.insert(QStringLiteral("grid"), QVariant::fromValue(grid));
  load(game,
#include "examples/docs/effects.md.8.text"
  );
  root.reset();
}

}  // namespace
}  // namespace kindora
