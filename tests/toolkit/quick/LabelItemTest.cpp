// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/LabelItem.h"

#include "platform/services/ViewServices.h"
#include "tests/toolkit/quick/RecordFixture.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

class LabelItemTest : public RecordFixture {
 protected:
  std::shared_ptr<UILabel> addLabel(const char* text, CGRect frame) {
    auto label = std::make_shared<UILabel>();
    label->setText(text);
    label->setNumberOfLines(0);
    return add(label, frame);
  }
  // The columns and rows with something darker than the ground in them.
  [[nodiscard]] QRect ink() {
    const QImage image = drawn();
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y).lightness() < 200) found |= QRect(x, y, 1, 1);
      }
    }
    return found;
  }
  [[nodiscard]] LabelItem& labelItem() const { return *item->findChild<LabelItem*>(); }
};

TEST_F(LabelItemTest, DrawsWithinItsIntrinsicSize) {
  const auto label = addLabel("Hxg", {{50, 60}, {}});
  label->setFrame({{50, 60}, label->intrinsicContentSize()});
  const QRect found = ink();
  const CGSize size = label->frame().size;
  EXPECT_GE(found.left(), 49);
  EXPECT_LE(found.right(), 50 + size.width);
  EXPECT_GE(found.top(), 60);
  EXPECT_LT(found.bottom(), 60 + size.height);
  EXPECT_GT(found.width(), size.width - 5);
}

TEST_F(LabelItemTest, TheFirstLineStandsOnTheMeasuredBaseline) {
  const auto label = addLabel("HHH", {{50, 60}, {}});
  label->setFrame({{50, 60}, label->intrinsicContentSize()});
  EXPECT_EQ(ink().bottom() + 1, 60 + label->firstBaselineFromTop());
}

TEST_F(LabelItemTest, WrapsAsMeasuredAlsoBetweenPixels) {
  const auto label = addLabel("Some words that need more than one line", {{10.4, 10.3}, {}});
  label->setPreferredMaxLayoutWidth(100.3);
  label->setFrame({{10.4, 10.3}, label->intrinsicContentSize()});
  EXPECT_EQ(labelItem().lines().extent().size, label->intrinsicContentSize());
}

TEST_F(LabelItemTest, AlignsItsLines) {
  const auto label = addLabel("H", {{0, 0}, {200, 40}});
  EXPECT_LT(ink().right(), 30);
  label->setTextAlignment(NSTextAlignment::center);
  EXPECT_NEAR(ink().center().x(), 100, 2);
  label->setTextAlignment(NSTextAlignment::right);
  EXPECT_GT(ink().left(), 170);
}

TEST_F(LabelItemTest, StandsInTheMiddleOfMoreRoom) {
  addLabel("HHH", {{0, 0}, {200, 100}});
  EXPECT_NEAR(ink().center().y(), 50, 4);
}

TEST_F(LabelItemTest, DrawsPartsInTheirColours) {
  const auto label = addLabel("", {{0, 0}, {200, 40}});
  label->setAttributedText(NSAttributedString("HHHH", {.foregroundColor = UIColor::redColor()}));
  EXPECT_GT(pixel(ink().left() + 1, 20).red(), 200);
  EXPECT_LT(pixel(ink().left() + 1, 20).green(), 120);
}

TEST_F(LabelItemTest, IsGreyWhileItIsNotEnabled) {
  const auto label = addLabel("", {{0, 0}, {200, 40}});
  label->setAttributedText(NSAttributedString("HHHH", {.foregroundColor = UIColor::redColor()}));
  label->setEnabled(false);
  const QRect found = ink();
  const QColor color = pixel(found.left() + 1, 20);
  EXPECT_GT(color.lightness(), 120);
}

TEST_F(LabelItemTest, ItsInkFollowsTheSystem) {
  const auto label = addLabel("HHH", {{0, 0}, {200, 40}});
  label->setTextColor(UIColor::blackColor());
  EXPECT_FALSE(ink().isEmpty());
  looks->change({.dark = true});
  EXPECT_TRUE(ink().isEmpty()) << "light on the window's white";
}

TEST_F(LabelItemTest, GrowsWithTheUsersTexts) {
  const auto label = addLabel("HHH", {{0, 0}, {200, 100}});
  const double width = ink().width();
  const CGSize size = label->intrinsicContentSize();
  looks->change({.textScale = 2});
  EXPECT_NEAR(ink().width(), 2 * width, 4);
  EXPECT_NEAR(label->intrinsicContentSize().width, 2 * size.width, 2);
  label->setFont(label->shownFont().unscaled());
  EXPECT_NEAR(ink().width(), width, 1);
}

TEST_F(LabelItemTest, FollowsItsText) {
  const auto label = addLabel("", {{0, 0}, {200, 40}});
  EXPECT_TRUE(ink().isEmpty());
  label->setText("H");
  EXPECT_FALSE(ink().isEmpty());
  label->setText(std::nullopt);
  EXPECT_TRUE(ink().isEmpty());
}

TEST_F(LabelItemTest, MarkupIsText) {
  addLabel("<img src='x'>", {{0, 0}, {200, 40}});
  EXPECT_EQ(labelItem().lines().strings(), std::vector{QStringLiteral("<img src='x'>")});
  EXPECT_EQ(names(QAccessible::StaticText), QStringList(QStringLiteral("<img src='x'>")));
}

TEST_F(LabelItemTest, AHeaderIsReadAsOne) {
  const auto label = addLabel("Title", {{0, 0}, {200, 40}});
  EXPECT_EQ(names(QAccessible::StaticText), QStringList(QStringLiteral("Title")));
  label->setAccessibility(UIAccessibilityRole::header, std::nullopt);
  EXPECT_EQ(names(QAccessible::Heading), QStringList(QStringLiteral("Title")));
}

}  // namespace
}  // namespace kindora
