// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <memory>
#include <vector>

#include "tests/effects/springy/SpringyFixture.h"
#include "toolkit/collection/UICollectionViewFlowLayout.h"

namespace kindora {
namespace {

using testing::ElementsAre;

class UICollectionViewFlowLayoutSideways : public testing::Test {
 protected:
  UICollectionViewFlowLayoutSideways() {
    view.flowDelegate = &delegate;
    layout.setCollectionView(&view);
    layout.setScrollDirection(UICollectionViewScrollDirection::horizontal);
    delegate.interitemSpacing = 0;
    delegate.lineSpacing = 0;
    delegate.insets = {};
  }
  [[nodiscard]] std::vector<CGRect> frames() {
    layout.prepareLayout();
    return framesOf(layout.layoutAttributesForElementsInRect(kEverything));
  }

  FakeCollectionView view{3, {270, 44}};
  FakeFlowDelegate delegate;
  UICollectionViewFlowLayout layout;
};

TEST_F(UICollectionViewFlowLayoutSideways, PlacesItemsThatFillTheHeightSideBySide) {
  delegate.sizeOfItem = [](IndexPath) { return CGSize{100, 44}; };
  EXPECT_THAT(frames(), ElementsAre(CGRect{{0, 0}, {100, 44}}, CGRect{{100, 0}, {100, 44}},
                                    CGRect{{200, 0}, {100, 44}}));
  EXPECT_EQ(layout.collectionViewContentSize(), (CGSize{300, 44}));
}

TEST_F(UICollectionViewFlowLayoutSideways, FillsColumnsFromTheTopBeforeTheNextOne) {
  view.resize({270, 100});
  delegate.sizeOfItem = [](IndexPath) { return CGSize{30, 50}; };
  EXPECT_THAT(frames(), ElementsAre(CGRect{{0, 0}, {30, 50}}, CGRect{{0, 50}, {30, 50}},
                                    CGRect{{30, 0}, {30, 50}}));
}

TEST_F(UICollectionViewFlowLayoutSideways, IsInvalidatedByAnotherHeightAlone) {
  EXPECT_FALSE(layout.shouldInvalidateLayoutForBoundsChange({{7, 0}, {300, 44}}));
  EXPECT_TRUE(layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {270, 45}}));
}

TEST_F(UICollectionViewFlowLayoutSideways, AnotherDirectionLaysOutAnew) {
  delegate.sizeOfItem = [](IndexPath) { return CGSize{270, 44}; };
  static_cast<void>(frames());
  layout.setScrollDirection(UICollectionViewScrollDirection::vertical);
  EXPECT_THAT(frames(), ElementsAre(CGRect{{0, 0}, {270, 44}}, CGRect{{0, 44}, {270, 44}},
                                    CGRect{{0, 88}, {270, 44}}));
}

RC_GTEST_PROP(UICollectionViewFlowLayoutProperty, SidewaysIsTheUprightLayoutMirrored, ()) {
  const auto mirrored = [](CGSize size) { return CGSize{size.height, size.width}; };
  const auto sizes = *rc::gen::container<std::vector<int>>(rc::gen::inRange(10, 150));
  const auto sizeOf = [&sizes](IndexPath path) {
    const int width = sizes[static_cast<std::size_t>(path.row)];
    return CGSize{static_cast<double>(width), 20.0 + width * 37 % 60};
  };
  const bool uniform = *rc::gen::arbitrary<bool>();
  const auto lay = [&](UICollectionViewScrollDirection direction, CGSize size, UIEdgeInsets insets,
                       const auto& sizeOfItem) {
    FakeCollectionView view(static_cast<int>(sizes.size()), size);
    FakeFlowDelegate delegate;
    delegate.sizeOfItem = sizeOfItem;
    delegate.uniform = uniform;
    delegate.insets = insets;
    view.flowDelegate = &delegate;
    UICollectionViewFlowLayout layout;
    layout.setCollectionView(&view);
    layout.setScrollDirection(direction);
    layout.prepareLayout();
    return std::pair(framesOf(layout.layoutAttributesForElementsInRect(kEverything)),
                     layout.collectionViewContentSize());
  };
  const auto [upright, uprightSize] =
      lay(UICollectionViewScrollDirection::vertical, {320, 200}, {1, 2, 3, 4}, sizeOf);
  const auto [sideways, sidewaysSize] =
      lay(UICollectionViewScrollDirection::horizontal, {200, 320}, {2, 1, 4, 3},
          [&](IndexPath path) { return mirrored(sizeOf(path)); });
  RC_ASSERT(sidewaysSize == mirrored(uprightSize));
  RC_ASSERT(sideways.size() == upright.size());
  for (std::size_t i = 0; i < upright.size(); ++i) {
    const CGRect& frame = upright[i];
    RC_ASSERT((sideways[i] == CGRect{{frame.origin.y, frame.origin.x}, mirrored(frame.size)}));
  }
}

// A layout that says more of a cell.
struct ColouredAttributes final : UICollectionViewLayoutAttributes {
  using UICollectionViewLayoutAttributes::UICollectionViewLayoutAttributes;
  int colour = 7;
};
class ColouringLayout final : public UICollectionViewFlowLayout {
 protected:
  [[nodiscard]] UICollectionViewLayoutAttributesRef makeAttributes(
      IndexPath path, const CGRect& frame) const override {
    return std::make_shared<ColouredAttributes>(path, frame);
  }
};

TEST(UICollectionViewFlowLayoutAttributesClass, IsTheLayoutsToChoose) {
  FakeCollectionView view(1);
  ColouringLayout layout;
  layout.setCollectionView(&view);
  layout.prepareLayout();
  const auto all = layout.layoutAttributesForElementsInRect(kEverything);
  ASSERT_EQ(all.size(), 1U);
  EXPECT_NE(std::dynamic_pointer_cast<ColouredAttributes>(all.front()), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<ColouredAttributes>(
                layout.layoutAttributesForItemAtIndexPath({0, 0})),
            nullptr);
}

TEST(UICollectionViewLayoutAttributes, IsOfACellUnlessADecorationKindIsGiven) {
  const UICollectionViewLayoutAttributes cell({0, 1}, {{0, 0}, {10, 10}});
  EXPECT_EQ(cell.decorationKind(), std::nullopt);
  EXPECT_EQ(cell.zIndex(), 0);
  const UICollectionViewLayoutAttributes line({0, 1}, {{0, 0}, {10, 10}}, "line");
  EXPECT_EQ(line.decorationKind(), "line");
  EXPECT_NE(cell, line);
}

}  // namespace
}  // namespace kindora
