// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ConstraintLayout.h"

#include <memory>

#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/qt/ItemView.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

constexpr auto kCorner = UIRectEdge::top | UIRectEdge::left;

// Counts its passes of layout.
class CountingLayout final : public ConstraintLayout {
 public:
  using ConstraintLayout::ConstraintLayout;
  int passes = 0;

 protected:
  void updatePolish() override {
    ++passes;
    ConstraintLayout::updatePolish();
  }
};

class ConstraintLayoutTest : public QuickFixture {
 protected:
  ConstraintLayoutTest() { layout->setSize({100, 80}); }

  static UIViewRef view(QQuickItem& of) { return viewOfItem(of); }
  static void setContent(QQuickItem& of, double width, double height) {
    of.setImplicitWidth(width);
    of.setImplicitHeight(height);
  }
  void settle() { static_cast<void>(drawn()); }
  // In the layout's corner.
  void stand(QQuickItem& one) { qav_alignEdgesWithSuperview(view(one), kCorner); }
  static QRectF geometry(const QQuickItem& of) {
    return {of.position(), QSizeF(of.width(), of.height())};
  }

  std::unique_ptr<CountingLayout> layout = place<CountingLayout>({0, 0, 100, 80});
  QQuickItem item{layout.get()};
};

TEST_F(ConstraintLayoutTest, PlacesItemsByTheSameHelpersAsViews) {
  qav_alignEdgesWithSuperview(view(item), UIRectEdge::all, {5, 10, -15, -20});
  settle();
  EXPECT_EQ(geometry(item), QRectF(10, 5, 70, 60));
}

TEST_F(ConstraintLayoutTest, AnItemWithoutConstraintsKeepsItsGeometry) {
  item.setPosition({3, 4});
  item.setSize({5, 6});
  settle();
  EXPECT_EQ(geometry(item), QRectF(3, 4, 5, 6));
}

TEST_F(ConstraintLayoutTest, AnItemIsAsLargeAsItsImplicitSizeAndFollowsIt) {
  stand(item);
  setContent(item, 30, 20);
  settle();
  EXPECT_EQ(geometry(item), QRectF(0, 0, 30, 20));
  setContent(item, 40, 25);
  settle();
  EXPECT_EQ(geometry(item), QRectF(0, 0, 40, 25));
}

TEST_F(ConstraintLayoutTest, AnImplicitSizeOfNothingIsNone) {
  setContent(item, 0, 20);
  EXPECT_EQ(view(item)->intrinsicContentSize(), (CGSize{kNoIntrinsicMetric, 20}));
}

TEST_F(ConstraintLayoutTest, FollowsItsOwnSizeAndChangedConstants) {
  qav_alignEdgesWithSuperview(view(item), UIRectEdge::left | UIRectEdge::right);
  const auto height = qav_pinHeight(view(item), 10);
  settle();
  EXPECT_EQ(item.width(), 100);
  layout->setWidth(60);
  height->setConstant(15);
  settle();
  EXPECT_EQ(item.width(), 60);
  EXPECT_EQ(item.height(), 15);
}

TEST_F(ConstraintLayoutTest, ManyChangesAskForOnePassAndNoneForNone) {
  qav_alignEdgesWithSuperview(view(item), UIRectEdge::left | UIRectEdge::right);
  const auto height = qav_pinHeight(view(item), 10);
  settle();
  layout->passes = 0;
  settle();
  EXPECT_EQ(layout->passes, 0);
  layout->setWidth(60);
  layout->setHeight(70);
  height->setConstant(15);
  setContent(item, 3, 3);
  settle();
  EXPECT_EQ(layout->passes, 1);
  settle();
  EXPECT_EQ(layout->passes, 1);
}

TEST_F(ConstraintLayoutTest, FollowsAnItemWhoseGeometryIsGiven) {
  QQuickItem box(layout.get());
  viewOfItem(box)->setConstraintBased(false);
  box.setPosition({20, 30});
  box.setSize({40, 10});
  qav_pinHorizontalSpacing(view(item), 5, view(box));
  qav_pinWidth(view(item), 8);
  settle();
  EXPECT_EQ(item.x(), 65);
  box.setWidth(20);
  settle();
  EXPECT_EQ(item.x(), 45);
  EXPECT_EQ(geometry(box), QRectF(20, 30, 20, 10));
}

TEST_F(ConstraintLayoutTest, ItemsDeeperInsideArePlacedWhenToldSo) {
  QQuickItem deep(&item);
  stand(item);
  qav_pinSize(view(item), {50, 50});
  qav_centerInSuperview(view(deep));
  qav_pinSize(view(deep), {10, 20});
  settle();
  EXPECT_EQ(geometry(deep), QRectF(0, 0, 0, 0));
  viewOfItem(deep)->setConstraintBased(true);
  settle();
  EXPECT_EQ(geometry(deep), QRectF(20, 15, 10, 20));
}

TEST_F(ConstraintLayoutTest, WhatElseMovesAPlacedItemIsUndone) {
  stand(item);
  qav_pinSize(view(item), {50, 50});
  settle();
  item.setX(33);
  item.setWidth(7);
  settle();
  EXPECT_EQ(geometry(item), QRectF(0, 0, 50, 50));
}

TEST_F(ConstraintLayoutTest, AnItemThatGoesTakesItsConstraintsAlong) {
  auto other = std::make_unique<QQuickItem>(layout.get());
  stand(*other);
  qav_pinWidth(view(*other), 30);
  qav_pinHorizontalSpacing(view(item), 5, view(*other));
  settle();
  EXPECT_EQ(item.x(), 35);
  const std::weak_ptr<UIView> record = view(*other);
  other.reset();
  EXPECT_TRUE(record.expired());
  EXPECT_TRUE(view(*layout)->constraints().empty());
  settle();
  EXPECT_EQ(item.x(), 35);
}

TEST_F(ConstraintLayoutTest, ALayoutThatGoesLeavesItsItemsUnplaced) {
  QQuickItem parentless;
  parentless.setParentItem(layout.get());
  stand(parentless);
  item.setParentItem(nullptr);
  item.setParent(nullptr);
  layout.reset();
  EXPECT_EQ(view(parentless)->superview(), nullptr);
  setContent(parentless, 5, 5);
  settle();
}

TEST_F(ConstraintLayoutTest, AnItemThatMovesToAnotherParentLosesWhatHeldItThere) {
  const auto second = place<ConstraintLayout>({0, 0, 50, 50});
  stand(item);
  item.setParentItem(second.get());
  EXPECT_TRUE(view(*layout)->constraints().empty());
  qav_centerInSuperview(view(item));
  qav_pinSize(view(item), {10, 10});
  settle();
  EXPECT_EQ(geometry(item), QRectF(20, 20, 10, 10));
  item.setParentItem(nullptr);
}

TEST_F(ConstraintLayoutTest, ALayoutDirectlyInsideAnotherIsPlacedByIt) {
  ConstraintLayout inner(layout.get());
  QQuickItem content(&inner);
  setContent(content, 30, 20);
  stand(inner);
  qav_alignEdges(view(content), UIRectEdge::all, view(inner), {4, 4, -4, -4});
  settle();
  EXPECT_EQ(geometry(inner), QRectF(0, 0, 38, 28));
  EXPECT_EQ(geometry(content), QRectF(4, 4, 30, 20));
}

TEST_F(ConstraintLayoutTest, ALayoutFurtherInsideStandsForItself) {
  ConstraintLayout inner(&item);
  EXPECT_EQ(view(inner)->superview(), nullptr);
  EXPECT_EQ(qav_commonAncestorWithView(view(inner), view(*layout)), nullptr);
}

TEST_F(ConstraintLayoutTest, ItemsThatAnswerByMovingDoNotKeepItBusy) {
  stand(item);
  qav_pinSize(view(item), {50, 50});
  QObject::connect(&item, &QQuickItem::widthChanged, &item,
                   [this] { item.setHeight(item.width() * 2); });
  QObject::connect(&item, &QQuickItem::heightChanged, &item,
                   [this] { item.setImplicitHeight(item.height() + 1); });
  settle();
  EXPECT_EQ(geometry(item), QRectF(0, 0, 50, 50));
  layout->passes = 0;
  settle();
  EXPECT_EQ(layout->passes, 0);
}

TEST_F(ConstraintLayoutTest, ItemsThatNeverAgreeDoNotKeepItBusy) {
  stand(item);
  qav_pinWidth(view(item), 50);
  item.setImplicitHeight(10);
  QObject::connect(&item, &QQuickItem::heightChanged, &item,
                   [this] { item.setImplicitHeight(item.height() + 1); });
  settle();
  layout->passes = 0;
  settle();
  EXPECT_EQ(layout->passes, 0);
}

}  // namespace
}  // namespace kindora
