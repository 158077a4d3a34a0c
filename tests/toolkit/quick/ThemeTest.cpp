// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Theme.h"

#include <gtest/gtest.h>

#include <QFont>
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "platform/fakes/FakeViewServices.h"
#include "toolkit/quick/Appearance.h"

namespace kindora {
namespace {

class ThemeTest : public ::testing::Test {
 protected:
  ThemeTest() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData(R"(
      import QtQuick
      import Kindora.Toolkit.Quick
      PlainText {
        property color danger: Theme.danger
        property color tinted: Appearance.tintedText
        property color paper: Theme.drawnGround("#80ffffff", Theme.card)
        property color picture: Theme.drawnGround("#123456", Theme.card)
        property real radius: Theme.cardRadius
        property real border: Theme.borderWidth
        property int move: Theme.moveDuration
        property int fade: Theme.fadeDuration
        property font bar: Appearance.barTitleFont
        points: Theme.bodySize
      })",
                      {});
    page.reset(component.create());
    EXPECT_NE(page, nullptr) << component.errorString().toStdString();
  }
  [[nodiscard]] int textSize(const char* property) const {
    return page->property(property).value<QFont>().pixelSize();
  }

  const FakeViewServices fakes = installFakeViewServices();
  QQmlEngine engine;
  std::unique_ptr<QObject> page;
};

TEST_F(ThemeTest, PagesReadWhatRecordsRead) {
  EXPECT_EQ(page->property("danger").value<QColor>(), toQColor(theme::kDanger));
  EXPECT_EQ(page->property("radius").toDouble(), theme::kCardRadius);
  EXPECT_EQ(page->property("move").toInt(), theme::kMoveDuration);
}

TEST_F(ThemeTest, PagesFollowTheSystem) {
  const QColor light = page->property("tinted").value<QColor>();
  fakes.looks->change({.dark = true, .highContrast = true});
  EXPECT_EQ(page->property("color").value<QColor>(), toQColor(theme::kDarkContrast.ink));
  EXPECT_EQ(page->property("danger").value<QColor>(), toQColor(theme::kDarkContrast.danger));
  EXPECT_NE(page->property("tinted").value<QColor>(), light);
  EXPECT_EQ(page->property("border").toDouble(), 2);
}

TEST_F(ThemeTest, WhiteGroundsAreCards) {
  fakes.looks->change({.dark = true});
  QColor card = toQColor(theme::kDark.card);
  card.setAlpha(0x80);
  EXPECT_EQ(page->property("paper").value<QColor>().rgba(), card.rgba());
  EXPECT_EQ(page->property("picture").value<QColor>(), QColor(0x12, 0x34, 0x56));
}

TEST_F(ThemeTest, TextsGrowAndBarsStay) {
  const int bar = textSize("bar");
  EXPECT_EQ(textSize("font"), 17);
  fakes.looks->change({.textScale = 1.5});
  EXPECT_EQ(textSize("font"), 26);
  EXPECT_EQ(textSize("bar"), bar);
  EXPECT_EQ(Appearance::barTitleFont().pixelSize(), bar);
  page->setProperty("bold", true);
  EXPECT_EQ(textSize("font"), 26);
  page->setProperty("scales", false);
  EXPECT_EQ(textSize("font"), 17);
}

TEST_F(ThemeTest, WhatMovesStandsStillAndWhatFadesDoesNot) {
  fakes.looks->change({.reducedMotion = true});
  EXPECT_EQ(page->property("move").toInt(), 0);
  EXPECT_EQ(page->property("fade").toInt(), theme::kFadeDuration);
}

}  // namespace
}  // namespace kindora
