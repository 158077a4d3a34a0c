// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/ScrollViewItem.h"

#include <QWheelEvent>

#include "tests/toolkit/quick/RecordFixture.h"
#include "toolkit/quick/TextInputItem.h"
#include "toolkit/view/UILabel.h"
#include "toolkit/view/UITapGestureRecognizer.h"
#include "toolkit/view/UITextField.h"

namespace kindora {
namespace {

// A scroll view over the whole window, with 600 points of content: red from 400 to 500.
class ScrollViewItemTest : public RecordFixture {
 protected:
  ScrollViewItemTest() {
    scroll->setContentSize({200, 600});
    addGround({{0, 400}, {200, 100}}, UIColor::redColor(), scroll);
    flick = item->findChild<ScrollViewItem*>()->childItems().first();
  }
  UIViewRef addButton(CGRect frame) {
    const auto button = addGround(frame, UIColor::whiteColor(), scroll);
    auto recognizer = std::make_shared<UITapGestureRecognizer>();
    recognizer->action = [this](UIView&) { ++taps; };
    button->setTapGestureRecognizer(recognizer);
    return button;
  }
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(&window, Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 10; ++step) {
      QTest::mouseMove(&window, from + (to - from) * step / 10);
    }
    QTest::mouseRelease(&window, Qt::LeftButton, Qt::NoModifier, to);
  }
  [[nodiscard]] double shownY() const { return flick->property("contentY").toDouble(); }

  const std::shared_ptr<UIScrollView> scroll =
      add(std::make_shared<UIScrollView>(), {{0, 0}, {200, 200}});
  QQuickItem* flick = nullptr;
  int taps = 0;
};

TEST_F(ScrollViewItemTest, ShowsTheContentAtItsOffset) {
  EXPECT_EQ(pixel(100, 150), QColor(Qt::white));
  scroll->setContentOffset({0, 300});
  EXPECT_EQ(shownY(), 300);
  EXPECT_EQ(pixel(100, 150), kRedPixel);
}

TEST_F(ScrollViewItemTest, TheViewFollowsTheUser) {
  flick->setProperty("contentY", 120.0);
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 120}));
}

TEST_F(ScrollViewItemTest, BeyondTheEndIsNoOffset) {
  flick->setProperty("contentY", -30.0);
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 0}));
  EXPECT_EQ(shownY(), -30);
  flick->setProperty("contentY", 450.0);
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 400}));
}

TEST_F(ScrollViewItemTest, ADragScrolls) {
  drag({100, 150}, {100, 50});
  EXPECT_GT(scroll->contentOffset().y, 50);
}

TEST_F(ScrollViewItemTest, ADragThatBeginsOnAButtonScrollsAndDoesNotTap) {
  addButton({{0, 0}, {200, 200}});
  click({100, 100});
  EXPECT_EQ(taps, 1);
  drag({100, 150}, {100, 50});
  EXPECT_GT(scroll->contentOffset().y, 50);
  EXPECT_EQ(taps, 1);
}

TEST_F(ScrollViewItemTest, TheWheelScrollsOverWhateverLiesInIt) {
  addGround({{0, 0}, {200, 200}}, UIColor::whiteColor(), scroll);
  QWheelEvent event({100, 100}, {100, 100}, {0, -60}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&window, &event);
  EXPECT_TRUE(QTest::qWaitFor([this] { return scroll->contentOffset().y > 0; }));
}

TEST_F(ScrollViewItemTest, WhatHasTheKeyboardIsScrolledIntoSight) {
  const auto field = add(std::make_shared<UITextField>(), {{0, 500}, {200, 30}}, scroll);
  field->becomeFirstResponder();
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 338}));
  scroll->setContentOffset({0, 0});
  field->resignFirstResponder();
  addButton({{0, 300}, {200, 40}});
  window.contentItem()->forceActiveFocus();
  QTest::keyClick(&window, Qt::Key_Tab);
  QTest::keyClick(&window, Qt::Key_Tab);
  EXPECT_GT(scroll->contentOffset().y, 100);
}

TEST_F(ScrollViewItemTest, AFieldThatHadTheKeyboardBeforeItWasDrawnIsDrawnOnceAndInSight) {
  auto field = std::make_shared<UITextField>();
  field->becomeFirstResponder();
  add(field, {{0, 500}, {200, 30}}, scroll);
  EXPECT_EQ(item->findChildren<TextInputItem*>().size(), 1);
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 338}));
}

TEST_F(ScrollViewItemTest, TheIndicatorShowsOnlyWhereThereIsMore) {
  const auto* indicator = item->findChild<QQuickItem*>(QStringLiteral("scrollIndicator"));
  ASSERT_NE(indicator, nullptr);
  EXPECT_TRUE(indicator->isVisible());
  scroll->setContentSize({200, 200});
  EXPECT_FALSE(indicator->isVisible());
}

TEST_F(ScrollViewItemTest, WhatFitsIsNotScrolled) {
  scroll->setContentSize({200, 200});
  drag({100, 150}, {100, 50});
  EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 0}));
  EXPECT_EQ(shownY(), 0);
}

}  // namespace
}  // namespace kindora
