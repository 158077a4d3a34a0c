// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/TextInputItem.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
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

void TextInputItem::setInputItem(QQuickItem* item) {
  if (inputItem_ == item) return;
  leaveInputItem();
  inputItem_ = item;
  if (item != nullptr) {
    item->installEventFilter(this);
    // Both kinds of input item have these, under a header that Qt keeps to itself.
    connect(item, SIGNAL(textChanged()), SLOT(inputDidChange()));
    connect(item, SIGNAL(preeditTextChanged()), SLOT(inputDidChange()));
    connect(item, SIGNAL(selectionStartChanged()), SLOT(inputSelectionDidChange()));
    connect(item, SIGNAL(selectionEndChanged()), SLOT(inputSelectionDidChange()));
    connect(item, SIGNAL(cursorPositionChanged()), SLOT(inputSelectionDidChange()));
    connect(item, &QQuickItem::activeFocusChanged, this, &TextInputItem::inputFocusDidChange);
    connect(item, &QQuickItem::enabledChanged, this, &TextInputItem::moveKeyboard);
  }
  showText();
  emit inputItemChanged();
}

void TextInputItem::leaveInputItem() {
  if (inputItem_ == nullptr) return;
  inputItem_->removeEventFilter(this);
  inputItem_->disconnect(this);
}

UITextInput* TextInputItem::textInput() const { return dynamic_cast<UITextInput*>(view().get()); }

QString TextInputItem::placeholder() const {
  return textInput() != nullptr ? QString::fromStdString(textInput()->placeholder()) : QString();
}

const UITextField* TextInputItem::textField() const {
  return dynamic_cast<const UITextField*>(view().get());
}

Qt::InputMethodHints TextInputItem::hints() const {
  Qt::InputMethodHints hints = Qt::ImhNone;
  if (textInput() != nullptr && textInput()->keyboardType() == UIKeyboardType::phonePad) {
    hints |= Qt::ImhDialableCharactersOnly | Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText;
  }
  if (textField() != nullptr && textField()->autocorrectionType() == UITextAutocorrectionType::no) {
    hints |= Qt::ImhNoPredictiveText;
  }
  if (isSecure()) {
    hints |=
        Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase;
  }
  return hints;
}

bool TextInputItem::isSecure() const {
  return textField() != nullptr && textField()->isSecureTextEntry();
}

QFont TextInputItem::fieldFont() const {
  const bool own = textField() != nullptr &&
                   (textField()->font() || textField()->placer() == UIViewPlacer::record);
  return own ? resolvedFont(textField()->shownFont()) : Appearance::font(17);
}

UIEdgeInsets TextInputItem::textInsets() const {
  return textField() != nullptr ? textField()->textInsets() : UIEdgeInsets{};
}

Qt::EnterKeyType TextInputItem::enterKey() const {
  if (textField() == nullptr) return Qt::EnterKeyDefault;
  switch (textField()->returnKeyType()) {
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

// --- What the user does ---

void TextInputItem::inputDidChange() {
  UITextInput* const view = textInput();
  if (view == nullptr || listening_) return;
  const QScopedValueRollback listening(listening_, true);
  const QString before = QString::fromStdString(view->decidedText());
  const QString preedit = inputPreedit();
  const int caret = inputCaret();
  const QString now = inputText().insert(caret, preedit);
  const NSRange selection = view->decidedSelection();
  const TextEdit change =
      editBetween(before, selection, now, caret + static_cast<int>(preedit.size()));
  const std::string replacement = change.replacement.toStdString();
  if (!preedit.isEmpty()) {
    view->setMarkedText(change.range, replacement);
    return;
  }
  if (now == before) {
    view->discardMarkedText();
    return;
  }
  bool accepted = false;
  const bool deletes = change.replacement.isEmpty() && selection.length == 0 &&
                       caret == static_cast<int>(change.range.location);
  if (deletes && change.range.length == 1 && change.range.end() == selection.location) {
    // The view may go by its selection. Only a backspace leaves the caret where it is; whatever
    // else changes some other place, such as a forward delete, selects that place first.
    accepted = view->replaceRange(change.range, replacement);
  } else if (deletes && change.range.location == selection.location) {
    accepted = view->deleteForward(change.range);
  } else {
    view->setSelectedRange(change.range);
    accepted = view->replaceRange(change.range, replacement);
  }
  if (accepted && text() == now) {
    view->setSelectedRange(rangeOf(caret, caret));
  } else {
    showText();
  }
}

void TextInputItem::inputSelectionDidChange() {
  UITextInput* const view = textInput();
  if (view == nullptr || listening_ || handlingKey_) return;
  if (view->hasMarkedText() || inputText() != text()) return;
  const QScopedValueRollback listening(listening_, true);
  view->setSelectedRange(inputSelection());
}

void TextInputItem::inputFocusDidChange() {
  if (inputItem_->hasActiveFocus()) {
    beginEditing();
  } else if (!inputItem_->hasFocus() && textInput() != nullptr) {
    textInput()->resignFirstResponder();
  }
}

void TextInputItem::beginEditing() {
  if (textInput() != nullptr) textInput()->becomeFirstResponder();
}

void TextInputItem::pressReturn() {
  if (auto* field = dynamic_cast<UITextField*>(view().get())) field->pressReturn();
}

bool TextInputItem::eventFilter(QObject* watched, QEvent* event) {
  UITextInput* const view = textInput();
  if (event->type() != QEvent::KeyPress || view == nullptr) {
    return FaceItem::eventFilter(watched, event);
  }
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool undoes = key.matches(QKeySequence::Undo);
  if (undoes || key.matches(QKeySequence::Redo)) {
    if (isSecure()) return true;  // what was typed in secret stays out of sight
    if (undoes) {
      view->undo();
    } else {
      view->redo();
    }
    return true;
  }
  {
    // The input item may select what it is about to delete, which the user did not.
    const QScopedValueRollback handling(handlingKey_, true);
    watched->event(event);
  }
  inputSelectionDidChange();
  return true;
}

// --- What the view says ---

void TextInputItem::viewDidChange() {
  FaceItem::viewDidChange();
  if (!listening_) showText();
  moveKeyboard();
}

void TextInputItem::moveKeyboard() {
  const UITextInput* const view = textInput();
  if (inputItem_ == nullptr || view == nullptr) return;
  if (view->isResponding() && !inputItem_->hasActiveFocus()) {
    if (inputItem_->isEnabled()) {
      inputItem_->forceActiveFocus();
    } else {
      inputItem_->setFocus(true);
    }
  } else if (!view->isResponding() && inputItem_->hasFocus()) {
    // An input method decides on what it has composed.
    QGuiApplication::inputMethod()->commit();
    inputItem_->setFocus(false);
  }
}

void TextInputItem::showText() {
  const UITextInput* const view = textInput();
  if (inputItem_ == nullptr || view == nullptr || view->hasMarkedText()) return;
  const QScopedValueRollback listening(listening_, true);
  if (!inputPreedit().isEmpty()) dropPreedit();
  if (inputText() != text()) inputItem_->setProperty("text", text());
  const NSRange wanted = view->selectedRange();
  if (inputSelection() == wanted) return;
  QMetaObject::invokeMethod(inputItem_, "select", Q_ARG(int, static_cast<int>(wanted.location)),
                            Q_ARG(int, static_cast<int>(wanted.end())));
}

void TextInputItem::dropPreedit() {
  if (inputItem_->hasActiveFocus()) QGuiApplication::inputMethod()->reset();
  QInputMethodEvent nothing;
  QCoreApplication::sendEvent(inputItem_, &nothing);
}

// --- The input item ---

QString TextInputItem::inputText() const { return inputItem_->property("text").toString(); }

QString TextInputItem::inputPreedit() const {
  return inputItem_->property("preeditText").toString();
}

int TextInputItem::inputCaret() const { return inputItem_->property("cursorPosition").toInt(); }

NSRange TextInputItem::inputSelection() const {
  return rangeOf(inputItem_->property("selectionStart").toInt(),
                 inputItem_->property("selectionEnd").toInt());
}

}  // namespace kindora
