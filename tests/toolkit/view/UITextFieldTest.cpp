// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UITextField.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kindora {
namespace {

// Writes down what it is asked and answers as it is told.
class Delegate final : public UITextFieldDelegate {
 public:
  bool textFieldShouldReturn(UITextField& /*field*/) override {
    ++returns;
    return true;
  }
  bool textFieldShouldChangeCharactersInRange(UITextField& field, NSRange range,
                                              std::string_view replacement) override {
    asked.push_back(field.text() + "[" + std::to_string(range.location) + "," +
                    std::to_string(range.length) + "]" + std::string(replacement));
    if (instead) field.setText(*instead);
    return accepts;
  }

  bool accepts = true;
  std::optional<std::string> instead;
  int returns = 0;
  std::vector<std::string> asked;
};

class UITextFieldTest : public ::testing::Test {
 protected:
  UITextFieldTest() {
    field->setDelegate(delegate);
    field->editingChanged = [this](UITextField& edited) { edits.push_back(edited.text()); };
  }

  std::shared_ptr<UITextField> field = std::make_shared<UITextField>();
  std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
  std::vector<std::string> edits;
};

TEST_F(UITextFieldTest, BeginsEmptyAndWithoutTheKeyboard) {
  EXPECT_EQ(field->text(), "");
  EXPECT_EQ(field->selectedRange(), (NSRange{0, 0}));
  EXPECT_FALSE(field->isFirstResponder());
  EXPECT_EQ(field->textColor(), std::nullopt);
}

// --- Text from the program ---

TEST_F(UITextFieldTest, TextFromTheProgramPutsTheCaretBehindItAndIsNoEdit) {
  field->setText("a😀");
  EXPECT_EQ(field->text(), "a😀");
  EXPECT_EQ(field->selectedRange(), (NSRange{3, 0}));
  EXPECT_TRUE(edits.empty());
  EXPECT_TRUE(delegate->asked.empty());
}

TEST_F(UITextFieldTest, ASelectionStopsAtTheEnd) {
  field->setText("abc");
  field->setSelectedRange({1, 99});
  EXPECT_EQ(field->selectedRange(), (NSRange{1, 2}));
  field->setSelectedRange({99, 1});
  EXPECT_EQ(field->selectedRange(), (NSRange{3, 0}));
}

TEST_F(UITextFieldTest, TellsThoseWhoDrawItOfEachRealChange) {
  int changes = 0;
  const auto subscription = field->observe([&] { ++changes; });
  field->setText("a");
  field->setText("a");
  EXPECT_EQ(changes, 1);
  field->setTextColor(UIColor::blackColor());
  field->setTextColor(UIColor::blackColor());
  EXPECT_EQ(changes, 2);
  field->setPlaceholder("p");
  field->setPlaceholder("p");
  EXPECT_EQ(changes, 3);
  field->setReturnKeyType(UIReturnKeyType::next);
  field->setReturnKeyType(UIReturnKeyType::next);
  EXPECT_EQ(changes, 4);
  field->setKeyboardType(UIKeyboardType::phonePad);
  field->setKeyboardType(UIKeyboardType::phonePad);
  EXPECT_EQ(changes, 5);
}

// --- Edits by the user ---

TEST_F(UITextFieldTest, AnEditIsAskedAboutBeforeItCounts) {
  field->setText("ab");
  EXPECT_TRUE(field->replaceRange({1, 1}, "xyz"));
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"ab[1,1]xyz"});
  EXPECT_EQ(field->text(), "axyz");
  EXPECT_EQ(field->selectedRange(), (NSRange{4, 0}));
  EXPECT_EQ(edits, std::vector<std::string>{"axyz"});
}

TEST_F(UITextFieldTest, ARefusedEditChangesNothing) {
  field->setText("ab");
  delegate->accepts = false;
  EXPECT_FALSE(field->replaceRange({2, 0}, "c"));
  EXPECT_EQ(field->text(), "ab");
  EXPECT_TRUE(edits.empty());
}

TEST_F(UITextFieldTest, ARefusalMaySetAnotherText) {
  delegate->accepts = false;
  delegate->instead = "(1) 2";
  EXPECT_FALSE(field->replaceRange({0, 0}, "12"));
  EXPECT_EQ(field->text(), "(1) 2");
}

TEST_F(UITextFieldTest, WithoutADelegateEveryEditCounts) {
  field->setDelegate({});
  EXPECT_TRUE(field->replaceRange({0, 0}, "a"));
  EXPECT_EQ(field->text(), "a");
}

TEST_F(UITextFieldTest, MarkedTextIsPartOfTheTextAndCountsAtOnce) {
  field->setText("ab");
  field->setSelectedRange({1, 0});
  field->setMarkedText({1, 0}, "に");
  EXPECT_TRUE(field->hasMarkedText());
  EXPECT_EQ(field->text(), "aにb");
  EXPECT_EQ(field->selectedRange(), (NSRange{2, 0}));
  EXPECT_EQ(edits, std::vector<std::string>{"aにb"});
  EXPECT_TRUE(delegate->asked.empty());
}

TEST_F(UITextFieldTest, MarkedTextStandsInPlaceOfWhatWasSelected) {
  field->setText("abc");
  field->setSelectedRange({1, 1});
  field->setMarkedText({1, 1}, "xy");
  EXPECT_EQ(field->text(), "axyc");
  EXPECT_EQ(field->decidedText(), "abc");
  EXPECT_EQ(field->decidedSelection(), (NSRange{1, 1}));
}

TEST_F(UITextFieldTest, MarkedTextGivenUpIsGone) {
  field->setText("ab");
  field->setMarkedText({0, 2}, "n");
  field->discardMarkedText();
  field->discardMarkedText();
  EXPECT_FALSE(field->hasMarkedText());
  EXPECT_EQ(field->text(), "ab");
  EXPECT_EQ(edits, (std::vector<std::string>{"n", "ab"}));
}

TEST_F(UITextFieldTest, DecidedTextIsAskedAboutWithoutTheMarkedText) {
  field->setText("a");
  field->setMarkedText({1, 0}, "n");
  EXPECT_TRUE(field->replaceRange({1, 0}, "に"));
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"a[1,0]に"});
  EXPECT_EQ(field->text(), "aに");
}

TEST_F(UITextFieldTest, MarkedTextThatIsRefusedInTheEndIsToldToBeGone) {
  delegate->accepts = false;
  field->setMarkedText({0, 0}, "n");
  EXPECT_FALSE(field->replaceRange({0, 0}, "に"));
  EXPECT_EQ(edits, (std::vector<std::string>{"n", ""}));
}

TEST_F(UITextFieldTest, TextFromTheProgramEndsMarkedText) {
  field->setText("a");
  field->setMarkedText({1, 0}, "n");
  field->setText("a");
  EXPECT_FALSE(field->hasMarkedText());
  EXPECT_EQ(field->text(), "a");
}

// --- Deleting forward ---

// Writes digits in pairs: "12-34-5".
class InPairs final : public UITextFieldDelegate {
 public:
  bool textFieldShouldChangeCharactersInRange(UITextField& field, NSRange /*range*/,
                                              std::string_view replacement) override {
    ++asked;
    const NSRange selection = field.selectedRange();
    std::string pairs;
    std::size_t digits = 0;
    std::size_t caret = 0;
    const std::string text =
        stringByReplacingCharactersInRange(field.text(), selection, replacement);
    for (std::size_t at = 0; at < text.size(); ++at) {
      if (at == selection.location + replacement.size()) caret = pairs.size();
      if (text[at] == '-') continue;
      if (digits > 0 && digits % 2 == 0) pairs += '-';
      pairs += text[at];
      ++digits;
    }
    field.setText(pairs);
    field.setSelectedRange({caret, 0});
    return false;
  }
  int asked = 0;
};

TEST_F(UITextFieldTest, AForwardDeletionGoesOnBehindWhatIsLaidOutAgain) {
  const auto pairs = std::make_shared<InPairs>();
  field->setDelegate(pairs);
  field->setText("12-34-5");
  field->setSelectedRange({2, 0});
  EXPECT_FALSE(field->deleteForward({2, 1}));
  EXPECT_EQ(field->text(), "12-45");
  EXPECT_EQ(pairs->asked, 2);
}

TEST_F(UITextFieldTest, AForwardDeletionEndsWithTheText) {
  const auto pairs = std::make_shared<InPairs>();
  field->setDelegate(pairs);
  field->setText("12");
  EXPECT_FALSE(field->deleteForward({2, 0}));
  EXPECT_EQ(field->text(), "12");
  EXPECT_EQ(pairs->asked, 1);
}

TEST_F(UITextFieldTest, AForwardDeletionThatIsAcceptedIsOne) {
  field->setText("a😀b");
  EXPECT_TRUE(field->deleteForward({1, 2}));
  EXPECT_EQ(field->text(), "ab");
  EXPECT_EQ(delegate->asked, std::vector<std::string>{"a😀b[1,2]"});
}

TEST_F(UITextFieldTest, AForwardDeletionThatIsRefusedIsNotTriedAgain) {
  delegate->accepts = false;
  field->setText("abc");
  EXPECT_FALSE(field->deleteForward({1, 1}));
  EXPECT_EQ(field->text(), "abc");
  EXPECT_EQ(delegate->asked.size(), 1U);
}

// --- Undo ---

TEST_F(UITextFieldTest, UndoAndRedoAreEdits) {
  field->setText("ab");
  field->replaceRange({2, 0}, "cd");
  field->undo();
  EXPECT_EQ(field->text(), "ab");
  EXPECT_EQ(field->selectedRange(), (NSRange{2, 0}));
  field->redo();
  EXPECT_EQ(field->text(), "abcd");
  EXPECT_EQ(field->selectedRange(), (NSRange{4, 0}));
  EXPECT_EQ(delegate->asked, (std::vector<std::string>{"ab[2,0]cd", "abcd[0,4]ab", "ab[0,2]abcd"}));
  EXPECT_EQ(edits, (std::vector<std::string>{"abcd", "ab", "abcd"}));
}

TEST_F(UITextFieldTest, WhatWasTypedInOneGoIsTakenBackInOne) {
  for (const char* key : {"a", "b", "c"}) field->replaceRange(field->selectedRange(), key);
  field->setSelectedRange({1, 0});
  field->replaceRange({1, 0}, "x");
  field->undo();
  EXPECT_EQ(field->text(), "abc");
  field->undo();
  EXPECT_EQ(field->text(), "");
  field->undo();
  EXPECT_EQ(field->text(), "");
}

TEST_F(UITextFieldTest, UndoMayBeRefused) {
  field->replaceRange({0, 0}, "ab");
  delegate->accepts = false;
  field->undo();
  EXPECT_EQ(field->text(), "ab");
  EXPECT_EQ(field->selectedRange(), (NSRange{2, 0}));
}

TEST_F(UITextFieldTest, TextFromTheProgramHasNoHistory) {
  field->replaceRange({0, 0}, "ab");
  field->setText("c");
  field->undo();
  EXPECT_EQ(field->text(), "c");
}

TEST_F(UITextFieldTest, TextThatAnEditWasAnsweredWithHasAHistory) {
  const auto pairs = std::make_shared<InPairs>();
  field->setDelegate(pairs);
  field->replaceRange({0, 0}, "1234");
  field->setSelectedRange({4, 1});
  field->replaceRange({4, 1}, "");
  EXPECT_EQ(field->text(), "12-3");
  field->undo();
  EXPECT_EQ(field->text(), "12-34");
  field->undo();
  EXPECT_EQ(field->text(), "");
  field->redo();
  EXPECT_EQ(field->text(), "12-34");
}

TEST_F(UITextFieldTest, TheReturnKeyGoesToTheDelegate) {
  field->pressReturn();
  EXPECT_EQ(delegate->returns, 1);
}

// --- The keyboard ---

TEST_F(UITextFieldTest, TheKeyboardIsInOnePlaceOnly) {
  const auto other = std::make_shared<UITextField>();
  EXPECT_TRUE(field->becomeFirstResponder());
  EXPECT_TRUE(other->becomeFirstResponder());
  EXPECT_FALSE(field->isFirstResponder());
  EXPECT_TRUE(other->isFirstResponder());
  EXPECT_TRUE(field->resignFirstResponder());
  EXPECT_TRUE(other->isFirstResponder());
  EXPECT_TRUE(other->resignFirstResponder());
  EXPECT_FALSE(other->isFirstResponder());
}

TEST_F(UITextFieldTest, BothHearThatTheKeyboardMoved) {
  const auto other = std::make_shared<UITextField>();
  field->becomeFirstResponder();
  int mine = 0;
  int others = 0;
  const auto a = field->observe([&] { ++mine; });
  const auto b = other->observe([&] { ++others; });
  other->becomeFirstResponder();
  EXPECT_EQ(mine, 1);
  EXPECT_EQ(others, 1);
  other->becomeFirstResponder();
  EXPECT_EQ(others, 1);
}

TEST_F(UITextFieldTest, EndEditingReachesAFieldFarInside) {
  const auto root = std::make_shared<UIView>();
  const auto middle = std::make_shared<UIView>();
  root->addSubview(middle);
  middle->addSubview(field);
  field->becomeFirstResponder();
  EXPECT_TRUE(root->endEditing(true));
  EXPECT_FALSE(field->isFirstResponder());
}

TEST_F(UITextFieldTest, EndEditingElsewhereLeavesItAlone) {
  field->becomeFirstResponder();
  EXPECT_TRUE(std::make_shared<UIView>()->endEditing(true));
  EXPECT_TRUE(field->isFirstResponder());
}

TEST_F(UITextFieldTest, AFieldThatGoesTakesTheKeyboardWithIt) {
  auto gone = std::make_shared<UITextField>();
  gone->becomeFirstResponder();
  gone.reset();
  EXPECT_TRUE(field->becomeFirstResponder());
  EXPECT_TRUE(field->isFirstResponder());
}

}  // namespace
}  // namespace kindora
