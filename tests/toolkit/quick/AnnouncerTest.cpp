// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Announcer.h"

#include <QAccessible>
#include <QCoreApplication>
#include <string>
#include <vector>

#include "tests/support/AnnouncementEar.h"
#include "tests/toolkit/quick/RecordFixture.h"
#include "toolkit/view/UIImageView.h"

namespace kindora {
namespace {

// A view that is made in code and says "Completed".
class AnnouncerTest : public RecordFixture {
 protected:
  std::shared_ptr<UIImageView> addStamp(UIAccessibilityRole role) {
    auto stamp = std::make_shared<UIImageView>();
    stamp->setAlpha(0);
    stamp->setAccessibility(role, "Completed");
    add(stamp, {{0, 0}, {100, 100}});
    QCoreApplication::processEvents();
    return stamp;
  }

  using Names = std::vector<std::string>;
  AnnouncementEar ear{engine};
};

TEST_F(AnnouncerTest, AViewThatAsksForItIsAnnouncedOnceItShows) {
  const auto stamp = addStamp(UIAccessibilityRole::alert);
  EXPECT_EQ(ear.texts, Names{});
  EXPECT_EQ(names(QAccessible::AlertMessage), QStringList{});
  stamp->setAlpha(0.5);
  QCoreApplication::processEvents();
  EXPECT_EQ(ear.texts, Names{"Completed"});
  EXPECT_EQ(names(QAccessible::AlertMessage), QStringList{QStringLiteral("Completed")});
  stamp->setAlpha(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(ear.texts, Names{"Completed"});
}

TEST_F(AnnouncerTest, OthersAreNotAnnounced) {
  addStamp(UIAccessibilityRole::staticText)->setAlpha(1);
  QCoreApplication::processEvents();
  EXPECT_EQ(ear.texts, Names{});
}

TEST_F(AnnouncerTest, WhatHasGoneByThenIsNotAnnounced) {
  const auto stamp = addStamp(UIAccessibilityRole::alert);
  stamp->setAlpha(1);
  stamp->removeFromSuperview();
  QCoreApplication::processEvents();
  EXPECT_EQ(ear.texts, Names{});
}

}  // namespace
}  // namespace kindora
