// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/RecordItem.h"

#include <QSignalSpy>
#include <QTest>

#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

class RecordItemTest : public QuickFixture {
 protected:
  RecordItemTest() { root->setBackgroundColor(kRedColor); }

  // A view that fills its superview whenever it is laid out.
  class Root final : public UIView {
   public:
    void layoutSubviews() override {
      ++layouts;
      for (const auto& view : subviews()) view->setFrame(bounds());
    }
    int layouts = 0;
  };

  const std::shared_ptr<Root> root = std::make_shared<Root>();
  std::unique_ptr<RecordItem> item = place<RecordItem>({10, 20, 50, 60});
};

TEST_F(RecordItemTest, DrawsNothingWithoutARecord) { EXPECT_EQ(pixel(30, 40), QColor(Qt::white)); }

TEST_F(RecordItemTest, DrawsTheRootAsLargeAsTheItem) {
  item->setRecord({root});
  EXPECT_EQ(root->frame(), (CGRect{{0, 0}, {50, 60}}));
  const QImage image = drawn();
  EXPECT_EQ(image.pixelColor(10, 20), kRedPixel);
  EXPECT_EQ(image.pixelColor(59, 79), kRedPixel);
  EXPECT_EQ(image.pixelColor(9, 20), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(60, 79), QColor(Qt::white));
}

TEST_F(RecordItemTest, TheRootFollowsTheItemsSize) {
  item->setRecord({root});
  item->setSize({20, 20});
  EXPECT_EQ(root->frame(), (CGRect{{0, 0}, {20, 20}}));
  EXPECT_EQ(pixel(40, 50), QColor(Qt::white));
}

TEST_F(RecordItemTest, AnItemWithoutASizeLeavesTheRootsFrame) {
  root->setFrame({{0, 0}, {30, 30}});
  item->setSize({0, 0});
  item->setRecord({root});
  EXPECT_EQ(root->frame(), (CGRect{{0, 0}, {30, 30}}));
}

TEST_F(RecordItemTest, LaysOutBeforeTheFrameAndOnlyWhatAsksForIt) {
  const auto inside = std::make_shared<UIView>();
  root->addSubview(inside);
  item->setRecord({root});
  EXPECT_EQ(root->layouts, 0);
  static_cast<void>(drawn());
  const int first = root->layouts;
  EXPECT_GE(first, 1);
  EXPECT_EQ(inside->frame(), root->bounds());
  static_cast<void>(drawn());
  EXPECT_EQ(root->layouts, first);
  root->setNeedsLayout();
  EXPECT_EQ(root->layouts, first);
  static_cast<void>(drawn());
  EXPECT_EQ(root->layouts, first + 1);
}

TEST_F(RecordItemTest, TellsWhereTheRootIs) {
  item->setRecord({root});
  EXPECT_EQ(root->originInWindow(), (CGPoint{10, 20}));
}

TEST_F(RecordItemTest, AnotherRecordTakesItsPlace) {
  item->setRecord({root});
  const QSignalSpy changes(item.get(), &RecordItem::recordChanged);
  item->setRecord({root});
  item->setRecord({});
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(item->record().view, nullptr);
  EXPECT_EQ(pixel(30, 40), QColor(Qt::white));
}

TEST_F(RecordItemTest, ARecordOutlivesItsItem) {
  item->setRecord({root});
  item.reset();
  root->setNeedsLayout();
  EXPECT_EQ(root->originInWindow(), (CGPoint{0, 0}));
}

}  // namespace
}  // namespace kindora
