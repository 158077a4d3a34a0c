// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/PageUrl.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(PageUrl, NamesAFileInTheFolderOfItsModule) {
  EXPECT_EQ(pageUrl(u"Kindora.Toolkit.Hosts", u"TabHost"),
            QUrl(QStringLiteral("qrc:/qt/qml/Kindora/Toolkit/Hosts/TabHost.qml")));
}

TEST(PageUrl, AModuleOfOneWordIsOneFolder) {
  EXPECT_EQ(pageUrl(QStringLiteral("Example"), QStringLiteral("Main")),
            QUrl(QStringLiteral("qrc:/qt/qml/Example/Main.qml")));
}

}  // namespace
}  // namespace kindora
