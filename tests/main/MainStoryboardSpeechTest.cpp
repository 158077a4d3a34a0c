// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What assistive tools are told of a challenge that is uncovered.
#include <gtest/gtest.h>

#include <QAccessible>
#include <string>
#include <vector>

#include "screens/newchallenge/NewChallengeDetailViewController.h"
#include "tests/main/PageFixture.h"
#include "tests/support/AnnouncementEar.h"

namespace kindora {
namespace {

using Texts = std::vector<std::string>;

class MainStoryboardSpeechTest : public PageFixture {
 protected:
  MainStoryboardSpeechTest() {
    draw("NewChallengeDetailViewController", withChallenge<NewChallengeDetailViewController>,
         {390, 751});
  }

  void uncover() {
    dynamic_cast<NewChallengeDetailViewController&>(*controller).setDoneScratching(true);
    time.advance(1.6);
  }
  // The interface of that name, be it in sight or not.
  [[nodiscard]] QAccessibleInterface* inTree(const char* name) {
    return inTree(QAccessible::queryAccessibleInterface(&window), QLatin1String(name));
  }
  static QAccessibleInterface* inTree(QAccessibleInterface* from, const QString& name) {
    if (from == nullptr || from->text(QAccessible::Name) == name) return from;
    for (int i = 0; i < from->childCount(); ++i) {
      if (QAccessibleInterface* found = inTree(from->child(i), name)) return found;
    }
    return nullptr;
  }

  AnnouncementEar ear{engine};
};

constexpr const char* kTitle = "Catch Your Breath";
constexpr const char* kText = "Get a breath of fresh air!";

TEST_F(MainStoryboardSpeechTest, WhatIsCoveredIsNotInTheTree) {
  for (const char* covered : {kTitle, kText, "Accept", "Reject"}) {
    EXPECT_EQ(inTree(covered), nullptr) << covered;
  }
  EXPECT_NE(inTree("Scratch the cover away"), nullptr);
  uncover();
  time.advance(0.4);
  for (const char* shown : {kTitle, kText, "Accept", "Reject"}) {
    EXPECT_NE(inTree(shown), nullptr) << shown;
  }
  EXPECT_EQ(inTree("Scratch the cover away"), nullptr);
}

TEST_F(MainStoryboardSpeechTest, TheUncoveredChallengeIsAnnouncedOnce) {
  uncover();
  EXPECT_EQ(ear.texts, (Texts{kTitle, kText}));
  EXPECT_EQ(inTree(kTitle)->role(), QAccessible::AlertMessage);
  time.advance(2);
  EXPECT_EQ(ear.texts, (Texts{kTitle, kText}));
  EXPECT_EQ(inTree(kTitle)->role(), QAccessible::StaticText);
}

}  // namespace
}  // namespace kindora
