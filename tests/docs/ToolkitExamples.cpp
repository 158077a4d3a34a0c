// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <QFile>

#include "toolkit/controllers/PageUrl.h"

namespace kindora {
namespace {

TEST(ToolkitExamples, AModulesFileIsPartOfTheProgram) {
#include "examples/toolkit/controllers/PageUrl.h.1"
  EXPECT_TRUE(QFile::exists(QLatin1Char(':') + url.path())) << url.toString().toStdString();
}

}  // namespace
}  // namespace kindora
