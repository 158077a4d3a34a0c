// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A challenge with long texts, on every page that shows one and on phones of every shape.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "screens/badges/BadgeInfoViewController.h"
#include "screens/inprogress/InProgressChallengeDetailViewController.h"
#include "screens/newchallenge/NewChallengeDetailViewController.h"
#include "tests/main/PageFixture.h"

namespace kindora {
namespace {

struct LongPage {
  const char* scene;
  Prepare prepare;
  std::vector<const char*> items;  // from above to below
  const char* button;
};

struct Shape {
  const char* name;
  QSize page;  // between the bars
};

std::string repeated(const char* text, int times) {
  std::string result;
  for (int i = 0; i < times; ++i) result += text;
  return result;
}

class MainStoryboardLongTextsTest
    : public PageFixture,
      public ::testing::WithParamInterface<std::tuple<LongPage, Shape>> {
 protected:
  static const LongPage& page() { return std::get<0>(GetParam()); }
  static QSize size() { return std::get<1>(GetParam()).page; }

  void open(int times) {
    const ChallengeRef& challenge = store().inProgressChallenges[0];
    challenge->title = repeated("Kindness without any hurry ", times);
    challenge->description = repeated("Carry a heavy bag for somebody up the stairs. ", 4 * times);
    challenge->sender->name = repeated("Bartholomew the Astronaut ", times);
    draw(page().scene, page().prepare, size());
    if (auto* fresh = dynamic_cast<NewChallengeDetailViewController*>(controller.get())) {
      fresh->setDoneScratching(true);
      time.advance(2);
    }
    area_ = areaIn(*loader);
    ASSERT_NE(area_, nullptr);
  }
  [[nodiscard]] QQuickItem& area() const { return *area_; }
  [[nodiscard]] double contentHeight() const { return area().property("contentHeight").toDouble(); }
  [[nodiscard]] double scrolled() const { return area().property("contentY").toDouble(); }
  [[nodiscard]] QQuickItem* item(const char* name) const {
    return loader->findChild<QQuickItem*>(QLatin1String(name));
  }
  // In the page, as it is scrolled.
  [[nodiscard]] QRectF place(const char* name) const {
    const QQuickItem* which = item(name);
    return loader->mapRectFromItem(which, {0, 0, which->width(), which->height()});
  }
  static bool isCut(const QQuickItem& item) {
    if (item.property("truncated").toBool()) return true;
    const auto children = item.childItems();
    return std::ranges::any_of(children, [](const QQuickItem* each) { return isCut(*each); });
  }
  static QQuickItem* areaIn(QQuickItem& item) {
    if (item.property("overflows").isValid()) return &item;
    for (QQuickItem* child : item.childItems()) {
      if (QQuickItem* found = areaIn(*child)) return found;
    }
    return nullptr;
  }

 private:
  QQuickItem* area_ = nullptr;
};

TEST_P(MainStoryboardLongTextsTest, EveryTextIsThereInFullAndNothingCoversAnother) {
  for (const int times : {1, 4}) {
    SCOPED_TRACE(times);
    open(times);
    const std::vector<const char*>& items = page().items;
    for (std::size_t i = 0; i < items.size(); ++i) {
      SCOPED_TRACE(items[i]);
      ASSERT_NE(item(items[i]), nullptr);
      EXPECT_TRUE(item(items[i])->isVisible());
      EXPECT_FALSE(isCut(*item(items[i])));
      const QRectF here = place(items[i]);
      EXPECT_GE(here.left(), 0);
      EXPECT_LE(here.right(), size().width());
      EXPECT_GE(here.top(), 0);
      EXPECT_LE(here.bottom(), contentHeight());
      for (std::size_t other = 0; other < i; ++other) {
        const QRectF there = place(items[other]);
        EXPECT_FALSE(there.intersects(here)) << items[other];
        // Beside each other where the page is flat, else in their order.
        EXPECT_TRUE(there.bottom() <= here.top() || size().width() > size().height())
            << items[other];
      }
    }
  }
}

TEST_P(MainStoryboardLongTextsTest, WhatDoesNotFitScrollsAndIsCutOffAtThePagesEdge) {
  open(4);
  ASSERT_GT(contentHeight(), size().height());
  EXPECT_TRUE(area().clip());
  EXPECT_TRUE(area().property("interactive").toBool());
  QTest::keyClick(&window, Qt::Key_End);
  EXPECT_EQ(scrolled(), contentHeight() - size().height());
  EXPECT_LE(place(page().button).bottom(), size().height());
  QTest::keyClick(&window, Qt::Key_PageUp);
  EXPECT_LT(scrolled(), contentHeight() - size().height());
  QTest::keyClick(&window, Qt::Key_Home);
  EXPECT_EQ(scrolled(), 0);
  QTest::keyClick(&window, Qt::Key_Up);
  EXPECT_EQ(scrolled(), 0);
  QTest::keyClick(&window, Qt::Key_Down);
  EXPECT_GT(scrolled(), 0);
}

TEST_P(MainStoryboardLongTextsTest, AFingerScrolls) {
  open(4);
  const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
  const QPoint from(size().width() / 2, size().height() - 20);
  QTest::touchEvent(&window, device.get()).press(0, from);
  for (int up = 10; up <= 120; up += 10) {
    QTest::touchEvent(&window, device.get()).move(0, from - QPoint(0, up));
  }
  EXPECT_GT(scrolled(), 50);
  QTest::touchEvent(&window, device.get()).release(0, from - QPoint(0, 120));
}

TEST_P(MainStoryboardLongTextsTest, TheButtonComesIntoSightWithTheKeyboard) {
  open(4);
  item(page().button)->forceActiveFocus(Qt::TabFocusReason);
  EXPECT_GE(place(page().button).top(), 0);
  EXPECT_LE(place(page().button).bottom(), size().height());
}

INSTANTIATE_TEST_SUITE_P(
    Pages, MainStoryboardLongTextsTest,
    ::testing::Combine(
        ::testing::Values(LongPage{"NewChallengeDetailViewController",
                                   withChallenge<NewChallengeDetailViewController>,
                                   {"senderLabel", "imageView", "challengeNameLabel",
                                    "challengeDescriptionLabel", "acceptButton"},
                                   "rejectButton"},
                          LongPage{"InProgressChallengeDetailViewController",
                                   withChallenge<InProgressChallengeDetailViewController>,
                                   {"senderLabel", "imageView", "challengeNameLabel",
                                    "challengeDescriptionLabel", "completeButton"},
                                   "completeButton"},
                          LongPage{"BadgeInfoViewController",
                                   withChallenge<BadgeInfoViewController>,
                                   {"imageView", "challengeNameLabel", "challengeDescriptionLabel",
                                    "infoLabel", "kindoraButton"},
                                   "kindoraButton"}),
        ::testing::Values(Shape{"Tall", {390, 751}}, Shape{"Small", {320, 387}},
                          Shape{"Narrow", {320, 475}}, Shape{"Flat", {844, 297}})),
    [](const auto& test) {
      const std::string scene = std::get<0>(test.param).scene;
      return scene.substr(0, scene.find("ViewController")) + std::get<1>(test.param).name;
    });

}  // namespace
}  // namespace kindora
