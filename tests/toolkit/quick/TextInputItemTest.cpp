// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TextInputItem.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

#include "platform/fakes/FakeServices.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/view/UITextField.h"
#include "toolkit/view/UITextView.h"

namespace kindora {
namespace {

// --- What an edit was ---

struct EditCase {
  const char* name;
  QString before;
  NSRange selection;
  QString after;
  int caret;
  TextEdit edit;
};

class EditBetweenTest : public ::testing::TestWithParam<EditCase> {};

TEST_P(EditBetweenTest, IsFound) {
  const EditCase& each = GetParam();
  EXPECT_EQ(editBetween(each.before, each.selection, each.after, each.caret), each.edit);
}

QString s(const char* text) { return QString::fromUtf8(text); }

INSTANTIATE_TEST_SUITE_P(
    Edits, EditBetweenTest,
    ::testing::Values(
        EditCase{"TypedAtTheEnd", s("ab"), {2, 0}, s("abc"), 3, {{2, 0}, s("c")}},
        EditCase{"TypedAmongAlikes", s("aaa"), {1, 0}, s("aaaa"), 2, {{1, 0}, s("a")}},
        EditCase{"Backspace", s("abc"), {2, 0}, s("ac"), 1, {{1, 1}, s("")}},
        EditCase{"BackspaceAmongAlikes", s("aaa"), {2, 0}, s("aa"), 1, {{1, 1}, s("")}},
        EditCase{"DeleteAhead", s("abc"), {1, 0}, s("ac"), 1, {{1, 1}, s("")}},
        EditCase{"TypedOverASelection", s("abcd"), {1, 2}, s("axd"), 2, {{1, 2}, s("x")}},
        EditCase{"CutOut", s("abcd"), {1, 2}, s("ad"), 1, {{1, 2}, s("")}},
        EditCase{"PastedTheSame", s("abab"), {0, 2}, s("abab"), 2, {{0, 2}, s("ab")}},
        EditCase{"CompletedElsewhere", s("helo wor"), {8, 0}, s("hello wor"), 9, {{3, 0}, s("l")}},
        EditCase{"AllReplaced", s("abc"), {3, 0}, s("xyz"), 3, {{0, 3}, s("xyz")}},
        EditCase{"Cleared", s("abc"), {0, 3}, s(""), 0, {{0, 3}, s("")}},
        EditCase{"BehindACharacterOfTwoUnits", s("😀"), {2, 0}, s("😀a"), 3, {{2, 0}, s("a")}}),
    [](const auto& each) { return each.param.name; });

// --- The field on the screen ---

class Delegate final : public UITextFieldDelegate {
 public:
  bool textFieldShouldReturn(UITextField& /*field*/) override {
    ++returns;
    return true;
  }
  bool textFieldShouldChangeCharactersInRange(UITextField& field, NSRange range,
                                              std::string_view replacement) override {
    asked.push_back(field.text() + "[" + std::to_string(field.selectedRange().location) + "," +
                    std::to_string(field.selectedRange().length) + "]" +
                    std::to_string(range.location) + "," + std::to_string(range.length) + "," +
                    std::string(replacement));
    if (setting) {
      field.setText(setting->first);
      field.setSelectedRange({setting->second, 0});
      return false;
    }
    return accepts;
  }
  bool accepts = true;
  std::optional<std::pair<std::string, std::size_t>> setting;
  int returns = 0;
  std::vector<std::string> asked;
};

class TextInputItemTest : public QuickFixture {
 protected:
  TextInputItemTest() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    field->setDelegate(delegate);
    field->editingChanged = [this](UITextField&) { ++edits; };
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    item = make("TextField", "field");
    input = item->childItems().first();
  }
  ~TextInputItemTest() override {
    delete item;
    delete other;
  }

  QQuickItem* make(const char* type, const char* outlet) {
    QQmlComponent component(&engine);
    component.setData(QByteArray("import Kindora.Toolkit.Quick\n") + type + " { label: \"Label\" }",
                      {});
    QObject* made = component.createWithInitialProperties(
        {{QStringLiteral("record"), QVariant::fromValue(ViewHandle{owner.outlet(outlet)})},
         {QStringLiteral("width"), 100},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}});
    EXPECT_NE(made, nullptr) << component.errorString().toStdString();
    return qobject_cast<QQuickItem*>(made);
  }
  void focus() { field->becomeFirstResponder(); }
  void type(const char* keys) {
    for (; *keys != 0; ++keys) QTest::keyClick(&window, *keys);
  }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&window, key, modifiers);
  }
  [[nodiscard]] std::string shown() const {
    return input->property("text").toString().toStdString();
  }
  [[nodiscard]] int caret() const { return input->property("cursorPosition").toInt(); }
  // An input method that composes, and then decides.
  void compose(const QString& preedit, const QString& decided = {}) {
    QInputMethodEvent event(preedit, {});
    if (!decided.isEmpty()) event.setCommitString(decided);
    QCoreApplication::sendEvent(input, &event);
  }

  const FakeServices fakes = installFakeServices();
  Owner owner;
  const std::shared_ptr<UITextField> field = owner.make<UITextField>("field");
  const std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
  int edits = 0;
  QQmlEngine engine;
  QQuickItem* item = nullptr;
  QQuickItem* other = nullptr;
  QQuickItem* input = nullptr;
};

TEST_F(TextInputItemTest, TheKeyboardGoesWhereTheViewSays) {
  EXPECT_FALSE(input->hasActiveFocus());
  focus();
  EXPECT_TRUE(input->hasActiveFocus());
  field->resignFirstResponder();
  EXPECT_FALSE(input->hasActiveFocus());
}

TEST_F(TextInputItemTest, TheViewHearsWhereTheUserPutTheKeyboard) {
  input->forceActiveFocus();
  EXPECT_TRUE(field->isFirstResponder());
  QQuickItem elsewhere(window.contentItem());
  elsewhere.forceActiveFocus();
  EXPECT_FALSE(field->isFirstResponder());
}

TEST_F(TextInputItemTest, OneFieldTakesTheKeyboardFromAnother) {
  const auto second = owner.make<UITextField>("second");
  other = make("TextField", "second");
  focus();
  second->becomeFirstResponder();
  EXPECT_TRUE(other->childItems().first()->hasActiveFocus());
  EXPECT_FALSE(field->isFirstResponder());
  focus();
  EXPECT_TRUE(input->hasActiveFocus());
  EXPECT_FALSE(second->isFirstResponder());
}

TEST_F(TextInputItemTest, AFieldThatMayNotTakeTheKeyboardYetTakesItLater) {
  item->parentItem()->setEnabled(false);
  focus();
  EXPECT_FALSE(input->hasActiveFocus());
  item->parentItem()->setEnabled(true);
  EXPECT_TRUE(input->hasActiveFocus());
}

TEST_F(TextInputItemTest, AFieldDisabledForAWhileKeepsTheKeyboard) {
  focus();
  item->parentItem()->setEnabled(false);
  EXPECT_TRUE(field->isFirstResponder());
  item->parentItem()->setEnabled(true);
  EXPECT_TRUE(input->hasActiveFocus());
}

TEST_F(TextInputItemTest, ShowsTheViewsTextAndCaret) {
  field->setText("hello");
  EXPECT_EQ(shown(), "hello");
  EXPECT_EQ(caret(), 5);
  field->setSelectedRange({1, 2});
  EXPECT_EQ(input->property("selectedText").toString(), QStringLiteral("el"));
}

TEST_F(TextInputItemTest, TellsEachTypedCharacterWithTheCaretBeforeIt) {
  focus();
  type("ab");
  EXPECT_EQ(field->text(), "ab");
  EXPECT_EQ(edits, 2);
  EXPECT_EQ(delegate->asked, (std::vector<std::string>{"[0,0]0,0,a", "a[1,0]1,0,b"}));
  EXPECT_EQ(field->selectedRange(), (NSRange{2, 0}));
}

TEST_F(TextInputItemTest, TellsTheSelectionThatIsReplaced) {
  field->setText("abcd");
  focus();
  field->setSelectedRange({1, 2});
  press(Qt::Key_X);
  EXPECT_EQ(field->text(), "axd");
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"abcd[1,2]1,2,x"});
}

TEST_F(TextInputItemTest, HearsTheUsersSelection) {
  field->setText("abcd");
  focus();
  press(Qt::Key_Left);
  EXPECT_EQ(field->selectedRange(), (NSRange{3, 0}));
  press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(field->selectedRange(), (NSRange{2, 1}));
  press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(field->selectedRange(), (NSRange{0, 4}));
}

TEST_F(TextInputItemTest, BackspaceTellsTheCharacterBeforeTheCaret) {
  field->setText("aaa");
  focus();
  field->setSelectedRange({2, 0});
  press(Qt::Key_Backspace);
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"aaa[2,0]1,1,"});
  EXPECT_EQ(field->selectedRange(), (NSRange{1, 0}));
}

TEST_F(TextInputItemTest, ARefusedEditIsTakenBack) {
  field->setText("ab");
  focus();
  delegate->accepts = false;
  type("c");
  EXPECT_EQ(shown(), "ab");
  EXPECT_EQ(caret(), 2);
  EXPECT_EQ(edits, 0);
}

TEST_F(TextInputItemTest, ARefusalMaySetTextAndCaret) {
  field->setText("12");
  focus();
  delegate->setting = {"(1) 23", 3};
  type("3");
  EXPECT_EQ(shown(), "(1) 23");
  EXPECT_EQ(caret(), 3);
  EXPECT_EQ(field->selectedRange(), (NSRange{3, 0}));
}

TEST_F(TextInputItemTest, UndoAndRedoAreEdits) {
  focus();
  type("ab");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field->text(), shown());
  EXPECT_NE(field->text(), "ab");
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(field->text(), "ab");
}

TEST_F(TextInputItemTest, WhatIsTypedInSecretIsNotTakenBack) {
  field->setSecureTextEntry(true);
  focus();
  type("ab");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(field->text(), "ab");
}

TEST_F(TextInputItemTest, AnAssistiveToolsTextIsAnEdit) {
  field->setText("hello");
  QAccessible::queryAccessibleInterface(input)->setText(QAccessible::Value, QStringLiteral("help"));
  EXPECT_EQ(field->text(), "help");
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"hello[3,2]3,2,p"});
  delegate->accepts = false;
  QAccessible::queryAccessibleInterface(input)->setText(QAccessible::Value, QStringLiteral("x"));
  EXPECT_EQ(field->text(), "help");
  EXPECT_EQ(shown(), "help");
}

TEST_F(TextInputItemTest, AnAssistiveToolMayPressIt) {
  auto* const actions = QAccessible::queryAccessibleInterface(input)->actionInterface();
  ASSERT_NE(actions, nullptr);
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(field->isFirstResponder());
  EXPECT_TRUE(input->hasActiveFocus());
}

TEST_F(TextInputItemTest, PastingIsOneEdit) {
  field->setText("hello");
  focus();
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(field->text(), "");
  press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(field->text(), "hello");
  EXPECT_EQ(delegate->asked.back(), "[0,0]0,0,hello");
}

TEST_F(TextInputItemTest, UndecidedTextCountsAtOnceAndIsNotAskedAbout) {
  field->setText("ab");
  focus();
  field->setSelectedRange({1, 0});
  compose(QStringLiteral("に"));
  EXPECT_EQ(field->text(), "aにb");
  EXPECT_EQ(edits, 1);
  EXPECT_TRUE(delegate->asked.empty());
}

TEST_F(TextInputItemTest, DecidedTextIsOneEdit) {
  focus();
  compose(QStringLiteral("n"));
  compose(QString(), QStringLiteral("に"));
  EXPECT_EQ(field->text(), "に");
  EXPECT_EQ(shown(), "に");
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"[0,0]0,0,に"});
}

TEST_F(TextInputItemTest, TextDecidedWhileMoreIsComposedIsOneEditWithIt) {
  field->setText("ab");
  focus();
  field->setSelectedRange({1, 0});
  compose(QStringLiteral("n"));
  compose(QStringLiteral("k"), QStringLiteral("に"));
  EXPECT_EQ(field->text(), "aにkb");
  EXPECT_TRUE(delegate->asked.empty());
  compose(QString(), QStringLiteral("か"));
  EXPECT_EQ(field->text(), "aにかb");
  EXPECT_EQ(shown(), "aにかb");
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"ab[1,0]1,0,にか"});
}

TEST_F(TextInputItemTest, TextComposedOverASelectionReplacesIt) {
  field->setText("abc");
  focus();
  field->setSelectedRange({1, 1});
  compose(QStringLiteral("n"));
  EXPECT_EQ(field->text(), "anc");
  compose(QString(), QStringLiteral("に"));
  EXPECT_EQ(field->text(), "aにc");
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"abc[1,1]1,1,に"});
}

TEST_F(TextInputItemTest, UndecidedTextGivenUpIsGone) {
  field->setText("a");
  focus();
  compose(QStringLiteral("n"));
  compose(QString());
  EXPECT_EQ(field->text(), "a");
  EXPECT_EQ(shown(), "a");
}

TEST_F(TextInputItemTest, TheReturnKeyGoesToTheDelegate) {
  focus();
  press(Qt::Key_Return);
  EXPECT_EQ(delegate->returns, 1);
}

TEST_F(TextInputItemTest, MarkupIsTextLikeAnyOther) {
  field->setText("<b>x</b>");
  EXPECT_EQ(shown(), "<b>x</b>");
}

TEST_F(TextInputItemTest, GivesHintsForTheKeyboard) {
  auto* const face = qobject_cast<TextInputItem*>(item);
  EXPECT_EQ(face->hints(), Qt::ImhNone);
  field->setKeyboardType(UIKeyboardType::phonePad);
  EXPECT_TRUE(face->hints().testFlag(Qt::ImhDialableCharactersOnly));
  EXPECT_EQ(face->enterKey(), Qt::EnterKeyDefault);
  field->setReturnKeyType(UIReturnKeyType::next);
  EXPECT_EQ(face->enterKey(), Qt::EnterKeyNext);
  field->setReturnKeyType(UIReturnKeyType::done);
  EXPECT_EQ(face->enterKey(), Qt::EnterKeyDone);
}

TEST_F(TextInputItemTest, TextTakesTheViewsColour) {
  EXPECT_NE(input->property("color").value<QColor>(), QColor(Qt::red));
  field->setTextColor({1, 0, 0, 1});
  EXPECT_EQ(input->property("color").value<QColor>(), QColor(Qt::red));
}

// --- Text of many lines ---

TEST_F(TextInputItemTest, ATextViewTakesManyLines) {
  const auto view = owner.make<UITextView>("message");
  view->setContentInset(0);
  view->setText("Hello");
  other = make("TextView", "message");
  ASSERT_NE(other, nullptr);
  view->becomeFirstResponder();
  press(Qt::Key_Return);
  type("you");
  EXPECT_EQ(view->text(), "Hello\nyou");
  EXPECT_EQ(view->selectedRange(), (NSRange{9, 0}));
  press(Qt::Key_Backspace);
  EXPECT_EQ(view->text(), "Hello\nyo");
  press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(view->text(), "Hello\nyou");
  view->setText("Bye");
  type("!");
  EXPECT_EQ(view->text(), "Bye!");
  view->resignFirstResponder();
  EXPECT_EQ(window.activeFocusItem() == nullptr || !other->isAncestorOf(window.activeFocusItem()),
            true);
}

TEST_F(TextInputItemTest, ATextViewTakesTextFromInputMethodsAndAssistiveTools) {
  const auto view = owner.make<UITextView>("message");
  view->setText("ab");
  other = make("TextView", "message");
  ASSERT_NE(other, nullptr);
  view->becomeFirstResponder();
  input = window.activeFocusItem();
  view->setSelectedRange({0, 1});
  compose(QStringLiteral("n"));
  EXPECT_EQ(view->text(), "nb");
  compose(QStringLiteral("k"), QStringLiteral("に"));
  EXPECT_EQ(view->text(), "にkb");
  compose(QString());
  EXPECT_EQ(view->text(), "にb");
  EXPECT_EQ(shown(), "にb");
  compose(QStringLiteral("n"));
  view->setText("c");
  EXPECT_EQ(shown(), "c");
  EXPECT_EQ(input->property("preeditText").toString(), QString());
  QAccessible::queryAccessibleInterface(input)->setText(QAccessible::Value, QStringLiteral("d\ne"));
  EXPECT_EQ(view->text(), "d\ne");
  other->setFocus(false);
}

}  // namespace
}  // namespace kindora
