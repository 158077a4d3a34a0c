// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Every scene's page, drawn with its controller.
#include <gmock/gmock.h>

#include <set>
#include <string>

#include "screens/badges/BadgeInfoViewController.h"
#include "screens/inprogress/InProgressChallengeDetailViewController.h"
#include "screens/newchallenge/NewChallengeDetailViewController.h"
#include "screens/picker/KindoraTableViewController.h"
#include "tests/main/PageFixture.h"

namespace kindora {
namespace {

using ::testing::ElementsAreArray;
using Names = std::set<std::string>;

struct Scene {
  const char* name;
  Prepare prepare;
};

class MainStoryboardPagesTest : public PageFixture, public ::testing::WithParamInterface<Scene> {
 protected:
  MainStoryboardPagesTest() { draw(GetParam().name, GetParam().prepare, {390, 750}); }

  // The outlets of the controller that the items show.
  void collectDrawn(const QQuickItem& item, Names& outlets) const {
    if (item.property("owner").value<QObject*>() == controller.get()) {
      outlets.insert(item.property("outlet").toString().toStdString());
    }
    for (const QQuickItem* child : item.childItems()) collectDrawn(*child, outlets);
  }
  static void collectNamed(const UIView& view, Names& names) {
    for (const auto& subview : view.subviews()) {
      if (!subview->name().empty()) names.insert(subview->name());
      collectNamed(*subview, names);
    }
  }
};

TEST_P(MainStoryboardPagesTest, IsLoadedWithItsControllerAndFillsItsPlace) {
  const auto* page = loader->property("item").value<QQuickItem*>();
  ASSERT_NE(page, nullptr);
  EXPECT_EQ(page->property("controller").value<QObject*>(), controller.get());
  EXPECT_EQ(page->size(), QSizeF(390, 750));
}

TEST_P(MainStoryboardPagesTest, DrawsEveryOutlet) {
  Names drawn;
  collectDrawn(*loader, drawn);
  drawn.erase("view");  // what controllers lay over the page
  Names outlets;
  collectNamed(*controller->view(), outlets);
  EXPECT_THAT(drawn, ElementsAreArray(outlets));
}

TEST_P(MainStoryboardPagesTest, DrawsSomething) {
  const QImage image = window.grabWindow();
  std::set<QRgb> colors;
  for (int y = 0; y < image.height(); y += 5) {
    for (int x = 0; x < image.width(); x += 5) colors.insert(image.pixel(x, y));
  }
  EXPECT_GT(colors.size(), 3U);
}

INSTANTIATE_TEST_SUITE_P(
    Scenes, MainStoryboardPagesTest,
    ::testing::Values(
        Scene{"ChallengesTableViewController", asItIs},
        Scene{"NewChallengeDetailViewController", withChallenge<NewChallengeDetailViewController>},
        Scene{"InProgressChallengeDetailViewController",
              withChallenge<InProgressChallengeDetailViewController>},
        Scene{"BadgesViewController", asItIs},
        Scene{"BadgeInfoViewController", withChallenge<BadgeInfoViewController>},
        Scene{"KindoraTableViewController", withChallenge<KindoraTableViewController>},
        Scene{"InviteFriendTableViewController", asItIs},
        Scene{"CreateChallengeTableViewController", asItIs}),
    [](const auto& scene) { return std::string(scene.param.name); });

}  // namespace
}  // namespace kindora
