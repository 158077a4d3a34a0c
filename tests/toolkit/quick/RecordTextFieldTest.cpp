// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/toolkit/quick/RecordFixture.h"
#include "toolkit/quick/TextInputItem.h"
#include "toolkit/view/UITextField.h"

namespace kindora {
namespace {

// A field made in code, at (20, 20) with 160 x 30 points.
class RecordTextFieldTest : public RecordFixture {
 protected:
  [[nodiscard]] QQuickItem& input() const {
    return *item->findChild<TextInputItem*>()->childItems().first();
  }

  const std::shared_ptr<UITextField> field =
      add(std::make_shared<UITextField>(), {{20, 20}, {160, 30}});
};

TEST_F(RecordTextFieldTest, StandsWhereTheRecordSays) {
  EXPECT_EQ(input().mapRectToScene({{}, input().size()}), QRectF(20, 20, 160, 30));
  EXPECT_EQ(field->frame(), (CGRect{{20, 20}, {160, 30}}));
}

TEST_F(RecordTextFieldTest, IsTypedInto) {
  click({100, 35});
  EXPECT_TRUE(field->isFirstResponder());
  QTest::keyClick(&window, 'h');
  QTest::keyClick(&window, 'i');
  EXPECT_EQ(field->text(), "hi");
}

TEST_F(RecordTextFieldTest, TheRecordMovesTheKeyboard) {
  field->becomeFirstResponder();
  EXPECT_TRUE(input().hasActiveFocus());
  field->resignFirstResponder();
  EXPECT_FALSE(input().hasActiveFocus());
}

TEST_F(RecordTextFieldTest, SecureTextIsDots) {
  field->setText("secret");
  EXPECT_EQ(input().property("displayText").toString(), QStringLiteral("secret"));
  field->setSecureTextEntry(true);
  EXPECT_FALSE(input().property("displayText").toString().contains(QLatin1Char('s')));
  const auto hints = input().property("inputMethodHints").value<Qt::InputMethodHints>();
  EXPECT_TRUE(hints.testFlag(Qt::ImhHiddenText));
  EXPECT_TRUE(hints.testFlag(Qt::ImhSensitiveData));
}

TEST_F(RecordTextFieldTest, AutocorrectionCanBeOff) {
  const auto predicts = [this] {
    return !input()
                .property("inputMethodHints")
                .value<Qt::InputMethodHints>()
                .testFlag(Qt::ImhNoPredictiveText);
  };
  EXPECT_TRUE(predicts());
  field->setAutocorrectionType(UITextAutocorrectionType::no);
  EXPECT_FALSE(predicts());
}

TEST_F(RecordTextFieldTest, HasTheRecordsFontAndInsets) {
  field->setFont(UIFont::boldSystemFontOfSize(13));
  field->setTextInsets({.top = 1, .left = 4, .bottom = 3, .right = 5});
  const QFont font = input().property("font").value<QFont>();
  EXPECT_EQ(font.pixelSize(), 13);
  EXPECT_EQ(font.weight(), QFont::Bold);
  EXPECT_EQ(input().property("leftPadding").toDouble(), 4);
  EXPECT_EQ(input().property("rightPadding").toDouble(), 5);
  EXPECT_EQ(input().property("topPadding").toDouble(), 1);
  EXPECT_EQ(input().property("bottomPadding").toDouble(), 3);
}

TEST_F(RecordTextFieldTest, IsReadWithItsLabelElseItsPlaceholder) {
  field->setPlaceholder("Login");
  EXPECT_EQ(names(QAccessible::EditableText), QStringList(QStringLiteral("Login")));
  field->setAccessibility(UIAccessibilityRole::none, "Your login");
  EXPECT_EQ(names(QAccessible::EditableText), QStringList(QStringLiteral("Your login")));
}

TEST_F(RecordTextFieldTest, ShowsItsPlaceholderWhileItIsEmpty) {
  const QImage empty = drawn();
  field->setPlaceholder("Login");
  const QImage hinted = drawn();
  EXPECT_NE(hinted, empty);
  field->setText(" ");
  EXPECT_EQ(drawn(), empty);
}

}  // namespace
}  // namespace kindora
