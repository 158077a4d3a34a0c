// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TextInputItem.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QScopedValueRollback>
#include <algorithm>

#include "toolkit/quick/Appearance.h"
#include "toolkit/view/UITextField.h"
#include "toolkit/view/UITextView.h"

namespace kindora {
namespace {

NSRange rangeOf(qsizetype start, qsizetype end) {
  return {static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)};
}

}  // namespace

TextEdit editBetween(const QString& before, NSRange selection, const QString& after, int caret) {
  const auto start = std::min(static_cast<qsizetype>(selection.location), before.size());
  const auto end = std::min(static_cast<qsizetype>(selection.end()), before.size());
  const qsizetype inserted = after.size() - start - (before.size() - end);
  if (inserted >= 0 && after.startsWith(before.left(start)) && after.endsWith(before.mid(end))) {
    return {rangeOf(start, end), after.mid(start, inserted)};
  }
  const qsizetype shorter = std::min(before.size(), after.size());
  qsizetype head = 0;
  while (head < std::min<qsizetype>(shorter, caret) && before[head] == after[head]) ++head;
  qsizetype tail = 0;
  while (tail < shorter - head &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) {
    ++tail;
  }
  return {rangeOf(head, before.size() - tail), after.mid(head, after.size() - tail - head)};
}

UITextInput* TextInputItem::input() const { return dynamic_cast<UITextInput*>(view().get()); }

QString TextInputItem::placeholder() const {
  return input() != nullptr ? QString::fromStdString(input()->placeholder()) : QString();
}

bool TextInputItem::isEditing() const { return input() != nullptr && input()->isResponding(); }

int TextInputItem::selectionStart() const {
  return input() != nullptr ? static_cast<int>(input()->selectedRange().location) : 0;
}

int TextInputItem::selectionEnd() const {
  return input() != nullptr ? static_cast<int>(input()->selectedRange().end()) : 0;
}

const UITextField* TextInputItem::field() const {
  return dynamic_cast<const UITextField*>(view().get());
}

Qt::InputMethodHints TextInputItem::hints() const {
  Qt::InputMethodHints hints = Qt::ImhNone;
  if (input() != nullptr && input()->keyboardType() == UIKeyboardType::phonePad) {
    hints |= Qt::ImhDialableCharactersOnly | Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText;
  }
  if (field() != nullptr && field()->autocorrectionType() == UITextAutocorrectionType::no) {
    hints |= Qt::ImhNoPredictiveText;
  }
  if (isSecure()) {
    hints |=
        Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
  }
  return hints;
}

bool TextInputItem::isSecure() const { return field() != nullptr && field()->isSecureTextEntry(); }

QFont TextInputItem::fieldFont() const {
  const bool own = field() != nullptr && (field()->font() || record().view);
  return own ? resolvedFont(field()->shownFont()) : Appearance::font(17);
}

UIEdgeInsets TextInputItem::textInsets() const {
  return field() != nullptr ? field()->textInsets() : UIEdgeInsets{};
}

Qt::EnterKeyType TextInputItem::enterKey() const {
  if (field() == nullptr) return Qt::EnterKeyDefault;
  switch (field()->returnKeyType()) {
    case UIReturnKeyType::standard:
      break;
    case UIReturnKeyType::next:
      return Qt::EnterKeyNext;
    case UIReturnKeyType::done:
      return Qt::EnterKeyDone;
  }
  return Qt::EnterKeyDefault;
}

double TextInputItem::contentInset() const {
  const auto* textView = dynamic_cast<const UITextView*>(view().get());
  return textView != nullptr ? textView->contentInset() : 0;
}

void TextInputItem::edit(const QString& text, const QString& preedit, int caret) {
  UITextInput* const view = input();
  if (view == nullptr || listening_) return;
  const QScopedValueRollback listening(listening_, true);
  const QString before = shownText_;
  shownText_ = text;
  if (text != before) {
    // Text that was undecided until now stands no more in the view when it answers.
    const TextEdit change = editBetween(before, view->selectedRange(), text, caret);
    // The view may go by its selection. Only a backspace leaves the caret where it is; whatever
    // else changes some other place, such as a forward delete or an undo, selects that place first.
    const NSRange selection = view->selectedRange();
    const bool backspace = selection.length == 0 && change.replacement.isEmpty() &&
                           change.range.length == 1 && change.range.end() == selection.location;
    if (!backspace) view->setSelectedRange(change.range);
    view->replaceRange(change.range, change.replacement.toStdString());
    shownSelection_ = view->selectedRange();
  }
  view->setMarkedText(preedit.toStdString());
  if (preedit.isEmpty()) resetUnlessShown();
}

void TextInputItem::select(const QString& text, int start, int end) {
  UITextInput* const view = input();
  if (view == nullptr || text != shownText_ || view->hasMarkedText() || listening_) return;
  const QScopedValueRollback listening(listening_, true);
  shownSelection_ = rangeOf(start, end);
  view->setSelectedRange(shownSelection_);
}

void TextInputItem::beginEditing() {
  if (input() != nullptr) input()->becomeFirstResponder();
}

void TextInputItem::endEditing() {
  if (input() != nullptr) input()->resignFirstResponder();
}

void TextInputItem::commit() { QGuiApplication::inputMethod()->commit(); }

void TextInputItem::pressReturn() {
  if (auto* field = dynamic_cast<UITextField*>(view().get())) field->pressReturn();
}

void TextInputItem::viewDidChange() {
  ViewItem::viewDidChange();
  if (!listening_ && input() != nullptr && !input()->hasMarkedText()) resetUnlessShown();
}

void TextInputItem::resetUnlessShown() {
  const QString wanted = text();
  if (wanted == shownText_ && input()->selectedRange() == shownSelection_) return;
  shownText_ = wanted;
  shownSelection_ = input()->selectedRange();
  const QScopedValueRollback listening(listening_, true);
  emit inputReset();
}

}  // namespace kindora
