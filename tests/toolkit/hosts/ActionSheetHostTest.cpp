// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include "tests/toolkit/hosts/HostFixture.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString kSheet = QStringLiteral("actionSheet");

// A sheet over a screen, with rows that write themselves down.
class ActionSheetHostTest : public HostFixture {
 protected:
  void present(const std::optional<std::string>& title = std::nullopt) {
    sheet = makeViewController<UIAlertController>(title, std::nullopt,
                                                  UIAlertControllerStyle::actionSheet);
    addAction("Camera");
    addAction("Photos");
  }
  void addAction(const std::string& title, UIAlertActionStyle style = UIAlertActionStyle::normal) {
    sheet->addAction(
        {.title = title, .style = style, .handler = [this, title] { chosen.push_back(title); }});
  }
  void show() {
    base->presentViewController(sheet, true);
    drawHost("ActionSheetHost", sheet.get());
  }
  void showFully() {
    show();
    time.advance(0.5);
  }

  const std::shared_ptr<UIViewController> base = screen(QStringLiteral("base"));
  std::shared_ptr<UIAlertController> sheet;
  std::vector<std::string> chosen;
};

TEST_F(ActionSheetHostTest, RisesFromBelow) {
  present();
  show();
  EXPECT_EQ(place(found(kSheet)).top(), kHeight);
  time.advance(0.5);
  EXPECT_EQ(place(found(kSheet)).bottom(), kHeight - 8);
}

TEST_F(ActionSheetHostTest, ItsRowsStandBelowEachOther) {
  present();
  showFully();
  const QRectF camera = place(spoken(QStringLiteral("Camera")));
  const QRectF photos = place(spoken(QStringLiteral("Photos")));
  EXPECT_EQ(camera.width(), 304);
  EXPECT_EQ(camera.bottom(), photos.top());
  EXPECT_EQ(place(found(kSheet)).height(), 2 * 56);
}

TEST_F(ActionSheetHostTest, ATitleStandsAboveTheRows) {
  present("A photo");
  showFully();
  EXPECT_EQ(role(QStringLiteral("A photo")), QAccessible::PopupMenu);
  EXPECT_GT(place(found(kSheet)).height(), 2 * 56);
}

TEST_F(ActionSheetHostTest, APressChooses) {
  present();
  showFully();
  click(QStringLiteral("Photos"));
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("Photos"));
  EXPECT_EQ(base->presentedViewController(), nullptr);
}

TEST_F(ActionSheetHostTest, AnAssistiveToolChooses) {
  present();
  showFully();
  pressByTool(QStringLiteral("Photos"));
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("Photos"));
}

TEST_F(ActionSheetHostTest, APressBesideItCancels) {
  present();
  addAction("Cancel", UIAlertActionStyle::cancel);
  showFully();
  clickAt({160, 20});
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("Cancel"));
}

TEST_F(ActionSheetHostTest, OnlyTheLeftButtonCancels) {
  present();
  addAction("Cancel", UIAlertActionStyle::cancel);
  showFully();
  QTest::mouseClick(&window, Qt::RightButton, Qt::NoModifier, {160, 20});
  time.advance(0.5);
  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(ActionSheetHostTest, WithoutACancellingRowAPressBesideItDoesNothing) {
  present();
  showFully();
  clickAt({160, 20});
  time.advance(0.5);
  EXPECT_THAT(chosen, IsEmpty());
  EXPECT_EQ(base->presentedViewController(), sheet);
}

TEST_F(ActionSheetHostTest, TheCancellingRowHasTheKeyboard) {
  present();
  addAction("Cancel", UIAlertActionStyle::cancel);
  showFully();
  press(Qt::Key_Return);
  time.advance(0.5);
  EXPECT_THAT(chosen, ElementsAre("Cancel"));
}

}  // namespace
}  // namespace kindora
