// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/QtTextMeasurer.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <cmath>

#include "toolkit/quick/Appearance.h"
#include "toolkit/quick/TextLines.h"

namespace kindora {
namespace {

const UIFont kFont = UIFont::systemFontOfSize(13);
const char* const kLong =
    "A long message that needs some lines of a narrow card, with a Wortzusammensetzungsungeheuer.";

TextExtent measure(std::string_view text, double width = 0, int lines = 0) {
  return QtTextMeasurer().measure(NSAttributedString(text), kFont, width, lines);
}

std::vector<QString> linesOf(std::string_view text, double width, int lines = 0) {
  return TextLines(NSAttributedString(text), kFont, width, lines).strings();
}

// The smallest rectangle around what is drawn, at that many pixels a point.
QRectF inkOf(const TextLines& lines, double width, double ratio) {
  QImage image(static_cast<int>(400 * ratio), static_cast<int>(300 * ratio),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(ratio, ratio);
  lines.draw(painter, {20, 20}, width, NSTextAlignment::left);
  painter.end();
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).alpha() > 40) ink |= QRect(x, y, 1, 1);
    }
  }
  return {ink.x() / ratio - 20, ink.y() / ratio - 20, ink.width() / ratio, ink.height() / ratio};
}

TEST(QtTextMeasurer, AnEmptyTextHasNoExtent) { EXPECT_EQ(measure(""), TextExtent{}); }

TEST(QtTextMeasurer, ALineIsAsHighAsItsFontSays) {
  EXPECT_EQ(measure("x").size.height, QtTextMeasurer().lineHeight(kFont));
  EXPECT_EQ(measure("x\ny").size.height, 2 * QtTextMeasurer().lineHeight(kFont));
}

TEST(QtTextMeasurer, BaselinesStandOnWholePoints) {
  const TextExtent extent = measure("x\ny\nz");
  EXPECT_EQ(extent.firstBaseline, std::round(extent.firstBaseline));
  EXPECT_EQ(extent.lastBaseline, extent.firstBaseline + 2 * QtTextMeasurer().lineHeight(kFont));
  EXPECT_GT(extent.firstBaseline, kFont.pointSize * 0.7);
}

TEST(QtTextMeasurer, TheMeasuredWidthBreaksNoOtherLines) {
  for (double width = 60; width < 300; width += 0.7) {
    const TextExtent extent = measure(kLong, width);
    EXPECT_LE(extent.size.width, width);
    EXPECT_EQ(linesOf(kLong, extent.size.width), linesOf(kLong, width)) << width;
    EXPECT_EQ(measure(kLong, extent.size.width), extent) << width;
  }
}

TEST(QtTextMeasurer, WhatIsDrawnLiesInWhatIsMeasured) {
  for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
    const TextLines lines(NSAttributedString(kLong), kFont, 150, 0);
    const QRectF ink = inkOf(lines, 150, ratio);
    const CGSize size = lines.extent().size;
    EXPECT_GT(ink.left(), -1) << ratio;
    EXPECT_GE(ink.top(), 0) << ratio;
    EXPECT_LE(ink.right(), size.width + 1) << ratio;
    EXPECT_LE(ink.bottom(), size.height) << ratio;
    EXPECT_GT(ink.right(), size.width - 3) << ratio;
    EXPECT_GT(ink.bottom(), size.height - 8) << ratio;
  }
}

TEST(QtTextMeasurer, AWordThatIsTooLongIsBroken) {
  EXPECT_LE(measure("Wortzusammensetzungsungeheuer", 60).size.width, 60);
  EXPECT_GT(linesOf("Wortzusammensetzungsungeheuer", 60).size(), 1U);
}

TEST(QtTextMeasurer, WithoutAMaximumOnlyTheTextBreaks) {
  EXPECT_EQ(linesOf(kLong, 0).size(), 1U);
  EXPECT_EQ(linesOf("one\ntwo", 0).size(), 2U);
}

TEST(QtTextMeasurer, WhatIsLeftOutIsAnEllipsis) {
  const std::vector<QString> lines = linesOf(kLong, 120, 2);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines.front(), linesOf(kLong, 120).front());
  EXPECT_TRUE(lines.back().endsWith(QChar(0x2026)));
  EXPECT_EQ(measure(kLong, 120, 2).size.height, 2 * QtTextMeasurer().lineHeight(kFont));
  EXPECT_LE(measure(kLong, 120, 2).size.width, 120);
}

TEST(QtTextMeasurer, AnEllipsisHalvesNoCharacter) {
  const std::vector<QString> lines = linesOf("😀😀😀😀😀😀😀😀😀😀 and more", 70, 1);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_FALSE(lines.front().chopped(1).back().isHighSurrogate());
}

TEST(QtTextMeasurer, MoreLinesAreAllowedThanThereAre) {
  EXPECT_EQ(linesOf("one\ntwo", 100, 5), linesOf("one\ntwo", 100));
}

TEST(QtTextMeasurer, PartsHaveFontsOfTheirOwn) {
  NSAttributedString text("small ");
  text.append("LARGE", {.font = UIFont::boldSystemFontOfSize(30)});
  const TextExtent extent = QtTextMeasurer().measure(text, kFont, 0, 0);
  EXPECT_EQ(extent.size.height, QtTextMeasurer().lineHeight(UIFont::systemFontOfSize(30)));
  EXPECT_GT(extent.size.width, measure("small LARGE").size.width);
}

TEST(QtTextMeasurer, MarkupIsText) {
  EXPECT_EQ(linesOf("<img src='x'>", 0).front(), QStringLiteral("<img src='x'>"));
  EXPECT_GT(measure("<b>x</b>").size.width, measure("x").size.width * 3);
}

TEST(QtTextMeasurer, TheSystemFontIsOneFamilyInTwoWeights) {
  const QFont normal = resolvedFont(UIFont::systemFontOfSize(17));
  const QFont bold = resolvedFont(UIFont::boldSystemFontOfSize(17));
  EXPECT_EQ(normal.family(), bold.family());
  EXPECT_EQ(normal.weight(), QFont::Normal);
  EXPECT_EQ(bold.weight(), QFont::Bold);
}

TEST(QtTextMeasurer, RemembersWithoutMixingUp) {
  const QtTextMeasurer measurer;
  for (int round = 0; round < 2; ++round) {
    for (int length = 1; length < 50; ++length) {
      const std::string text(static_cast<std::size_t>(length), 'm');
      EXPECT_EQ(measurer.measure(NSAttributedString(text), kFont, 0, 0), measure(text));
    }
  }
}

}  // namespace
}  // namespace kindora
