// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A number edited in a field on the screen by keys, input methods and assistive tools.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <QAccessible>
#include <QInputMethodEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>
#include <algorithm>
#include <array>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "app/PhoneNumberEdit.h"
#include "platform/fakes/FakeServices.h"
#include "tests/support/QuickFixture.h"
#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/view/UITextField.h"

namespace kindora {
namespace {

// What screens with a number do.
class NumberRule final : public UITextFieldDelegate {
 public:
  NumberRule() { chars_.addCharactersInString("+*#,"); }

  bool textFieldShouldChangeCharactersInRange(UITextField& field, NSRange /*range*/,
                                              std::string_view replacement) override {
    const PhoneNumberEdit edit =
        editPhoneNumber(format_, chars_, field.text(), field.selectedRange(), replacement);
    if (edit.isPlain()) return true;
    field.setText(edit.phone);
    field.setSelectedRange({edit.caret, 0});
    return false;
  }

 private:
  LuPhoneFormat format_{*readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE), "us"};
  CharacterSet chars_ = CharacterSet::decimalDigitCharacterSet();
};

std::string digitsOf(std::string_view text) {
  std::string digits;
  for (const char c : text) {
    if (c >= '0' && c <= '9') digits += c;
  }
  return digits;
}

class PhoneNumberField : public QuickFixture {
 public:
  PhoneNumberField() {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    field->setDelegate(rule);
    window.show();
    window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QQmlComponent component(&engine);
    component.setData("import Kindora.Toolkit.Quick\nTextField { label: \"Number\" }", {});
    item.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{QStringLiteral("record"), QVariant::fromValue(ViewHandle{field})},
         {QStringLiteral("width"), 100},
         {QStringLiteral("parent"), QVariant::fromValue(window.contentItem())}})));
    EXPECT_NE(item, nullptr) << component.errorString().toStdString();
    input = item->childItems().first();
    field->becomeFirstResponder();
  }

  void begin(const char* text, NSRange selection) {
    field->setText(text);
    field->setSelectedRange(selection);
  }
  void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&window, static_cast<Qt::Key>(key), modifiers);
  }
  // What an input method says: replaces around the caret, and goes on composing.
  void say(const std::string& decided, const std::string& composed, int start = 0, int length = 0) {
    QInputMethodEvent event(QString::fromStdString(composed), {});
    event.setCommitString(QString::fromStdString(decided), start, length);
    QCoreApplication::sendEvent(input, &event);
  }
  void setByAssistiveTool(const QString& text) {
    QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(input);
    ASSERT_NE(spoken, nullptr);
    spoken->setText(QAccessible::Value, text);
  }
  // What stands on the screen, composed text included.
  [[nodiscard]] std::string shown() const {
    QString text = input->property("text").toString();
    text.insert(caret(), input->property("preeditText").toString());
    return text.toStdString();
  }
  [[nodiscard]] int caret() const { return input->property("cursorPosition").toInt(); }

  const FakeServices fakes = installFakeServices();
  Owner owner;
  const std::shared_ptr<UITextField> field = owner.make<UITextField>("number");
  const std::shared_ptr<NumberRule> rule = std::make_shared<NumberRule>();
  QQmlEngine engine;
  std::unique_ptr<QQuickItem> item;
  QQuickItem* input = nullptr;

 private:
  void TestBody() override {}
};

class PhoneNumberFieldTest : public PhoneNumberField {
 protected:
  // Field and record, which are one.
  void expect(const std::string& text, int place) {
    EXPECT_EQ(shown(), text);
    EXPECT_EQ(field->text(), text);
    EXPECT_EQ(caret(), place);
    EXPECT_EQ(field->selectedRange(), (NSRange{static_cast<std::size_t>(place), 0}));
  }
};

// --- Input methods ---

TEST_F(PhoneNumberFieldTest, DigitsComposedOneAfterAnotherStayInOrder) {
  begin("415", {3, 0});
  say("", "5");
  say("5", "6");
  say("6", "");
  expect("415-56", 6);
}

TEST_F(PhoneNumberFieldTest, NothingIsLaidOutWhileADigitIsComposed) {
  begin("415", {3, 0});
  say("", "5");
  EXPECT_EQ(shown(), "4155");
  EXPECT_EQ(field->text(), "4155");
  say("5", "6");
  EXPECT_EQ(shown(), "41556");
  EXPECT_EQ(field->text(), "41556");
}

TEST_F(PhoneNumberFieldTest, ADigitComposedOverASelectionTakesItsPlace) {
  begin("(415) 555-2671", {6, 3});
  say("", "9");
  EXPECT_EQ(shown(), "(415) 9-2671");
  EXPECT_EQ(field->text(), "(415) 9-2671");
  say("9", "");
  expect("(415) 926-71", 7);
}

TEST_F(PhoneNumberFieldTest, ADigitComposedOverASelectionAndGivenUpLeavesAGap) {
  begin("(415) 555-2671", {6, 3});
  say("", "9");
  say("", "");
  EXPECT_EQ(digitsOf(shown()), "4152671");
  EXPECT_EQ(field->text(), shown());
}

TEST_F(PhoneNumberFieldTest, ADigitComposedAtACaretAndGivenUpLeavesNothing) {
  begin("(415) 555-2671", {7, 0});
  say("", "9");
  say("", "");
  expect("(415) 555-2671", 7);
}

TEST_F(PhoneNumberFieldTest, AnInputMethodMayComposeWhatStandsThereAlready) {
  begin("415-55", {6, 0});
  say("", "5", -1, 1);
  EXPECT_EQ(shown(), "415-55");
  say("", "52");
  say("52", "");
  expect("415-552", 7);
}

TEST_F(PhoneNumberFieldTest, AnInputMethodMayReplaceWhatStandsBeforeTheCaret) {
  begin("(415) 555-2671", {14, 0});
  say("99", "", -2, 2);
  expect("(415) 555-2699", 14);
}

// A keyboard on the screen may finish its digit when it is left.
TEST_F(PhoneNumberFieldTest, TheProgramMayEndAComposition) {
  begin("415", {3, 0});
  say("", "5");
  field->setText("20");
  expect("20", 2);
  say("", "1");
  field->setText("20");
  expect("20", 2);
}

// --- Deleting past separators ---

struct DeletionCase {
  const char* name;
  std::size_t caret;
  int key;  // or an input method's deletion, of one character
  Qt::KeyboardModifiers modifiers;
  const char* text;
};

class PhoneNumberDeletionTest : public PhoneNumberFieldTest,
                                public ::testing::WithParamInterface<DeletionCase> {};

TEST_P(PhoneNumberDeletionTest, TakesTheNextDigit) {
  const DeletionCase& each = GetParam();
  begin("(415) 555-2671", {each.caret, 0});
  if (each.key != 0) {
    press(each.key, each.modifiers);
  } else {
    say("", "", 0, 1);
  }
  EXPECT_EQ(shown(), each.text);
  EXPECT_EQ(field->text(), each.text);
}

INSTANTIATE_TEST_SUITE_P(
    Forward, PhoneNumberDeletionTest,
    ::testing::Values(
        DeletionCase{"BeforeABracket", 4, Qt::Key_Delete, {}, "(415) 552-671"},
        DeletionCase{"BeforeABlank", 5, Qt::Key_Delete, {}, "(415) 552-671"},
        DeletionCase{"BeforeADash", 9, Qt::Key_Delete, {}, "(415) 555-671"},
        DeletionCase{"BeforeADigit", 6, Qt::Key_Delete, {}, "(415) 552-671"},
        DeletionCase{"WordBeforeABracket", 4, Qt::Key_Delete, Qt::ControlModifier, "(415) 552-671"},
        DeletionCase{"WordBeforeADash", 9, Qt::Key_Delete, Qt::ControlModifier, "(415) 555-671"},
        DeletionCase{"OnScreenBeforeABracket", 4, 0, {}, "(415) 552-671"},
        DeletionCase{"OnScreenBeforeADash", 9, 0, {}, "(415) 555-671"},
        DeletionCase{"AtTheEnd", 14, Qt::Key_Delete, {}, "(415) 555-2671"}),
    [](const auto& each) { return each.param.name; });

TEST_F(PhoneNumberFieldTest, TheCaretOfAForwardDeletionStaysBehindItsDigit) {
  begin("(415) 555-2671", {9, 0});
  press(Qt::Key_Delete);
  expect("(415) 555-671", 9);
}

TEST_F(PhoneNumberFieldTest, ASelectedSeparatorTakesNoDigitWithIt) {
  begin("(415) 555-2671", {9, 1});
  press(Qt::Key_Delete);
  expect("(415) 555-2671", 9);
}

TEST_F(PhoneNumberFieldTest, DeletionsBackwardsPassASeparator) {
  const auto passes = [this](const std::function<void()>& deletes) {
    begin("(415) 555-2671", {10, 0});
    deletes();
    expect("(415) 555-2671", 9);
    deletes();
    EXPECT_LT(digitsOf(shown()).size(), 10U);
    EXPECT_TRUE(digitsOf(shown()).ends_with("2671"));
    EXPECT_EQ(field->text(), shown());
  };
  passes([this] { press(Qt::Key_Backspace); });
  passes([this] { press(Qt::Key_Backspace, Qt::ControlModifier); });
  passes([this] { say("", "", -1, 1); });
}

// --- Assistive tools, undo ---

TEST_F(PhoneNumberFieldTest, ANumberSetByAnAssistiveToolIsLaidOut) {
  setByAssistiveTool(QStringLiteral("4155552671"));
  expect("(415) 555-2671", 14);
  setByAssistiveTool(QStringLiteral("212"));
  expect("212", 3);
}

TEST_F(PhoneNumberFieldTest, ANumberSetByAnAssistiveToolWithoutItsSeparatorLosesNoDigit) {
  begin("415-55", {3, 0});
  setByAssistiveTool(QStringLiteral("41555"));
  expect("415-55", 3);
}

TEST_F(PhoneNumberFieldTest, UndoAndRedoReachBehindALayout) {
  begin("415", {3, 0});
  press(Qt::Key_5);
  expect("415-5", 5);
  press(Qt::Key_Z, Qt::ControlModifier);
  expect("415", 3);
  press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  expect("415-5", 5);
}

TEST_F(PhoneNumberFieldTest, UndoBringsBackWhatWasDeleted) {
  begin("(415) 555-2671", {14, 0});
  press(Qt::Key_Backspace);
  press(Qt::Key_Backspace);
  expect("(415) 555-26", 12);
  press(Qt::Key_Z, Qt::ControlModifier);
  expect("(415) 555-267", 13);
  press(Qt::Key_Z, Qt::ControlModifier);
  expect("(415) 555-2671", 14);
}

// --- Anything in any order ---

enum class Action {
  kType,
  kCompose,
  kDecide,
  kDecideAndCompose,
  kGiveUp,
  kBackspace,
  kDelete,
  kBackspaceWord,
  kDeleteWord,
  kDeleteAround,
  kMove,
  kSelect,
  kUndo,
  kRedo,
  kSetByAssistiveTool,
};

struct Step {
  Action action;
  std::string digits;  // what is typed, composed or set
  int from;            // how far before the caret, or which way
  int length;
};

[[maybe_unused]] std::ostream& operator<<(std::ostream& out, const Step& step) {
  return out << static_cast<int>(step.action) << " \"" << step.digits << "\" " << step.from << " "
             << step.length;
}

rc::Gen<std::vector<Step>> anySteps() {
  const auto digits = rc::gen::container<std::string>(rc::gen::inRange('0', ':'));
  return rc::gen::container<std::vector<Step>>(rc::gen::apply(
      [](int action, std::string text, int from, int length) {
        return Step{static_cast<Action>(action), std::move(text), from, length};
      },
      rc::gen::inRange(0, 15), digits, rc::gen::inRange(0, 5), rc::gen::inRange(1, 5)));
}

// Takes steps, and knows which digits there must be after each.
class PhoneNumberFieldPropertyTest : public PhoneNumberFieldTest {
 protected:
  void take(const Step& step) {
    const std::string text = shown();
    if (!composing) {
      const NSRange selection = field->selectedRange();
      head = digitsOf(text.substr(0, selection.location));
      gap = digitsOf(text.substr(selection.location, selection.length));
      tail = digitsOf(text.substr(selection.end()));
      decided.clear();
    }
    const std::string one = step.digits.substr(0, 1);
    switch (step.action) {
      case Action::kType:
        if (composing || one.empty()) return;
        press(Qt::Key_0 + (one[0] - '0'));
        return demand(head + one + tail);
      case Action::kCompose:
        if (one.empty()) return;
        composing = true;
        say("", step.digits);
        return demand(head + decided + step.digits + tail);
      case Action::kDecide:
        if (one.empty()) return;
        composing = false;
        say(step.digits, "");
        return demand(head + decided + step.digits + tail);
      case Action::kDecideAndCompose:
        if (one.empty()) return;
        composing = true;
        say(step.digits, one);
        decided += step.digits;
        return demand(head + decided + one + tail);
      case Action::kGiveUp:
        if (!composing) return;
        composing = false;
        say("", "");
        return demand(head + decided + tail);
      default:
        if (!composing) takeWithoutComposing(step, text);
    }
  }

  void demand(const std::string& digits) {
    RC_ASSERT(digitsOf(shown()) == digits);
    demandOneTruth();
  }
  void demandOneTruth() {
    RC_ASSERT(field->text() == shown());
    if (composing) return;
    const auto start = static_cast<std::size_t>(input->property("selectionStart").toInt());
    const auto end = static_cast<std::size_t>(input->property("selectionEnd").toInt());
    RC_ASSERT(field->selectedRange() == (NSRange{start, end - start}));
  }

  bool composing = false;

 private:
  void takeWithoutComposing(const Step& step, const std::string& text) {
    const bool selected = field->selectedRange().length > 0;
    const auto caret = static_cast<int>(field->selectedRange().location);
    const auto modifiers = Qt::ControlModifier;
    switch (step.action) {
      case Action::kBackspace:
        press(Qt::Key_Backspace);
        if (selected) return demand(head + tail);
        return demand(digitsOf(text.substr(0, static_cast<std::size_t>(std::max(0, caret - 1)))) +
                      tail);
      case Action::kDelete:
        press(Qt::Key_Delete);
        if (selected) return demand(head + tail);
        return demand(head + tail.substr(tail.empty() ? 0 : 1));
      case Action::kBackspaceWord:
        press(Qt::Key_Backspace, modifiers);
        RC_ASSERT(digitsOf(shown()).ends_with(tail));
        return demandOneTruth();
      case Action::kDeleteWord:
        if (selected) return;  // goes by where the selection began
        press(Qt::Key_Delete, modifiers);
        RC_ASSERT(digitsOf(shown()).starts_with(head));
        RC_ASSERT(tail.empty() || digitsOf(shown()).size() < head.size() + tail.size());
        return demandOneTruth();
      case Action::kDeleteAround: {
        const int from = std::min(step.from, caret);
        const int length = std::min(step.length, static_cast<int>(text.size()) - caret + from);
        if (selected || length == 0) return;
        say("", "", -from, length);
        const auto begin = static_cast<std::size_t>(caret - from);
        std::string left = digitsOf(text.substr(begin + static_cast<std::size_t>(length)));
        if (from == 0 && left == tail && !tail.empty()) left.erase(0, 1);
        return demand(digitsOf(text.substr(0, begin)) + left);
      }
      case Action::kMove:
        press(std::array{Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                         Qt::Key_Left}[static_cast<std::size_t>(step.from)]);
        return demand(head + gap + tail);
      case Action::kSelect:
        for (int i = 0; i < step.length; ++i) {
          press(step.from % 2 == 0 ? Qt::Key_Left : Qt::Key_Right, Qt::ShiftModifier);
        }
        return demand(head + gap + tail);
      case Action::kUndo:
        press(Qt::Key_Z, modifiers);
        return demandOneTruth();
      case Action::kRedo:
        press(Qt::Key_Z, modifiers | Qt::ShiftModifier);
        return demandOneTruth();
      default:
        setByAssistiveTool(QString::fromStdString(step.digits));
        return demand(step.digits);
    }
  }

  // The digits before, inside and behind what is selected, and what has been decided on since.
  std::string head;
  std::string gap;
  std::string tail;
  std::string decided;
};

TEST_F(PhoneNumberFieldPropertyTest, TheDigitsAreThoseTypedAndTheTextIsTheRecords) {
  EXPECT_TRUE(rc::check([this] {
    const std::vector<Step> steps = *anySteps();
    if (composing) say("", "");
    composing = false;
    begin("(415) 555-2671", {14, 0});
    for (const Step& step : steps) take(step);
  }));
}

}  // namespace
}  // namespace kindora
