// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerCollectionViewFlowLayout.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "alerts/card/QavAlertControllerCollectionViewLayoutAttributes.h"
#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "platform/fakes/FakeViewServices.h"
#include "tests/effects/springy/SpringyFixture.h"

namespace kindora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Attributes = QavAlertControllerCollectionViewLayoutAttributes;

class QavAlertControllerCollectionViewFlowLayoutTest : public testing::Test {
 protected:
  QavAlertControllerCollectionViewFlowLayoutTest() {
    layout.setItemSize({90, 44});
    layout.setCollectionView(&view);
  }
  [[nodiscard]] std::vector<UICollectionViewLayoutAttributesRef> all(
      const CGRect& rect = kEverything) {
    layout.prepareLayout();
    return layout.layoutAttributesForElementsInRect(rect);
  }
  [[nodiscard]] std::vector<CGRect> linesOf(const std::string& kind,
                                            const CGRect& rect = kEverything) {
    std::vector<CGRect> frames;
    for (const auto& element : all(rect)) {
      if (element->decorationKind() == kind) frames.push_back(element->frame());
    }
    return frames;
  }
  [[nodiscard]] std::vector<CGRect> horizontalLines(const CGRect& rect = kEverything) {
    return linesOf(kQavAlertControllerDecorationKindHorizontalSeparator, rect);
  }
  [[nodiscard]] std::vector<CGRect> verticalLines(const CGRect& rect = kEverything) {
    return linesOf(kQavAlertControllerDecorationKindVerticalSeparator, rect);
  }

  const FakeViewServices fakes = installFakeViewServices();
  FakeCollectionView view{3, {90, 132}};
  QavAlertControllerCollectionViewFlowLayout layout{
      std::make_shared<QavAlertControllerDefaultVisualStyle>()};
};

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, LeavesNoGaps) {
  EXPECT_EQ(layout.minimumInteritemSpacing(), 0);
  EXPECT_EQ(layout.minimumLineSpacing(), 0);
  EXPECT_EQ(layout.sectionInset(), UIEdgeInsets{});
  EXPECT_THAT(framesOf(all({{0, 0}, {90, 132}})).at(2), (CGRect{{0, 88}, {90, 44}}));
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, StackedButtonsHaveALineOnTop) {
  EXPECT_THAT(horizontalLines(), ElementsAre(CGRect{{0, 0}, {90, 0.5}}, CGRect{{0, 44}, {90, 0.5}},
                                             CGRect{{0, 88}, {90, 0.5}}));
  EXPECT_THAT(verticalLines(), IsEmpty());
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, SideBySideAllButTheFirstHaveALineBefore) {
  view.resize({270, 44});
  layout.setScrollDirection(UICollectionViewScrollDirection::horizontal);
  EXPECT_THAT(horizontalLines(), ElementsAre(CGRect{{0, 0}, {90, 0.5}}, CGRect{{90, 0}, {90, 0.5}},
                                             CGRect{{180, 0}, {90, 0.5}}));
  EXPECT_THAT(verticalLines(),
              ElementsAre(CGRect{{90, 0}, {0.5, 44}}, CGRect{{180, 0}, {0.5, 44}}));
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, OnlyButtonsInTheRectangleHaveLines) {
  EXPECT_THAT(horizontalLines({{0, 0}, {90, 44}}), ElementsAre(CGRect{{0, 0}, {90, 0.5}}));
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, LinesAreAsThickAsAPixelIsNow) {
  fakes.mainScreen->pixelsPerPoint = 1;
  EXPECT_EQ(horizontalLines().front().size.height, 1);
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, LinesLieOneLevelAboveTheirButtons) {
  for (const auto& element : all()) {
    EXPECT_EQ(element->zIndex(), element->decorationKind() ? 1 : 0);
  }
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, LinesCarryTheStylesColour) {
  for (const auto& element : all()) {
    const auto attributes = std::dynamic_pointer_cast<Attributes>(element);
    ASSERT_NE(attributes, nullptr);
    EXPECT_EQ(attributes->backgroundColor(), element->decorationKind()
                                                 ? UIColor::colorWithWhite(0.5, 0.5)
                                                 : UIColor::clearColor());
  }
}

TEST_F(QavAlertControllerCollectionViewFlowLayoutTest, AnotherSizeIsLaidOutAnew) {
  EXPECT_FALSE(layout.shouldInvalidateLayoutForBoundsChange({{5, 0}, {90, 132}}));
  EXPECT_TRUE(layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {91, 132}}));
  EXPECT_TRUE(layout.shouldInvalidateLayoutForBoundsChange({{0, 0}, {90, 133}}));
}

TEST(QavAlertControllerCollectionViewLayoutAttributes, CopiesAndComparesItsColour) {
  Attributes line({0, 1}, {{0, 0}, {10, 10}}, "line");
  line.setBackgroundColor(UIColor::redColor());
  Attributes copy = line;
  EXPECT_EQ(copy.backgroundColor(), UIColor::redColor());
  EXPECT_EQ(copy, line);
  copy.setBackgroundColor(UIColor::yellowColor());
  EXPECT_NE(copy, line);
  copy = line;
  copy.setZIndex(3);
  EXPECT_NE(copy, line);
}

}  // namespace
}  // namespace kindora
