// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/GalleryStoryboard.h"

#include <QFile>

#include "platform/services/Services.h"
#include "tests/gallery/GalleryFixture.h"

namespace kindora {
namespace {

using GalleryStoryboardTest = GalleryFixture;

TEST_F(GalleryStoryboardTest, EveryRowOpensAPageOfItsNameThatIsThere) {
  auto& menu = top<MenuTableViewController>();
  ASSERT_FALSE(menu.rows().empty());
  for (std::size_t i = 0; i < menu.rows().size(); ++i) {
    const auto& page = open<UIViewController>(static_cast<int>(i));
    EXPECT_EQ(page.title().toStdString(), menu.rows()[i].title);
    EXPECT_TRUE(QFile::exists(u':' + page.page().path())) << page.page().path().toStdString();
    EXPECT_TRUE(page.isVisible());
    navigation->popViewController(false);
    time.settle();
  }
}

TEST_F(GalleryStoryboardTest, EveryRowHasALineAndAPicture) {
  for (const MenuRow& row : top<MenuTableViewController>().rows()) {
    EXPECT_FALSE(row.detail.empty()) << row.title;
    const QString file = QStringLiteral(":/kindora/images/%1.svg");
    EXPECT_TRUE(QFile::exists(file.arg(QString::fromStdString(row.imageName)))) << row.title;
  }
}

}  // namespace
}  // namespace kindora
