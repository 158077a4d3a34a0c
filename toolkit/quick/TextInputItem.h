// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include "toolkit/quick/ViewItem.h"
#include "toolkit/view/UITextInput.h"

namespace kindora {

class UITextField;

/// Draws a text field or text view with an input item inside it, to which the user types. What the
/// user does there is told to the view; what the view makes of it comes back as inputReset.
class TextInputItem : public kindora::ViewItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY viewChanged)
  Q_PROPERTY(bool editing READ isEditing NOTIFY viewChanged)
  Q_PROPERTY(int selectionStart READ selectionStart NOTIFY viewChanged)
  Q_PROPERTY(int selectionEnd READ selectionEnd NOTIFY viewChanged)
  Q_PROPERTY(Qt::InputMethodHints hints READ hints NOTIFY viewChanged)
  Q_PROPERTY(Qt::EnterKeyType enterKey READ enterKey NOTIFY viewChanged)
  Q_PROPERTY(bool secure READ isSecure NOTIFY viewChanged)
  Q_PROPERTY(QFont fieldFont READ fieldFont NOTIFY viewChanged)
  Q_PROPERTY(double leftInset READ leftInset NOTIFY viewChanged)
  Q_PROPERTY(double rightInset READ rightInset NOTIFY viewChanged)
  Q_PROPERTY(double topInset READ topInset NOTIFY viewChanged)
  Q_PROPERTY(double bottomInset READ bottomInset NOTIFY viewChanged)
  Q_PROPERTY(double contentInset READ contentInset NOTIFY viewChanged)

 public:
  using ViewItem::ViewItem;

  [[nodiscard]] QString placeholder() const;
  /// True while the view has the keyboard.
  [[nodiscard]] bool isEditing() const;
  [[nodiscard]] int selectionStart() const;
  [[nodiscard]] int selectionEnd() const;
  [[nodiscard]] Qt::InputMethodHints hints() const;
  [[nodiscard]] Qt::EnterKeyType enterKey() const;
  /// Dots are shown in place of what is typed.
  [[nodiscard]] bool isSecure() const;
  /// A field's font; in a storyboard the app's at 17 points unless the field has one of its own.
  [[nodiscard]] QFont fieldFont() const;
  [[nodiscard]] double leftInset() const { return textInsets().left; }
  [[nodiscard]] double rightInset() const { return textInsets().right; }
  [[nodiscard]] double topInset() const { return textInsets().top; }
  [[nodiscard]] double bottomInset() const { return textInsets().bottom; }
  [[nodiscard]] double contentInset() const;

  /// The input item holds that text now, with undecided text of an input method at the caret.
  Q_INVOKABLE void edit(const QString& text, const QString& preedit, int caret);
  /// The input item's selection; ignored while its text is not the view's.
  Q_INVOKABLE void select(const QString& text, int start, int end);
  /// The input item has the keyboard.
  Q_INVOKABLE void beginEditing();
  /// The input item has given the keyboard up.
  Q_INVOKABLE void endEditing();
  /// Makes an input method decide on what it has composed.
  Q_INVOKABLE static void commit();
  Q_INVOKABLE void pressReturn();

 signals:
  /// The input item is to show the view's text and selection.
  void inputReset();

 protected:
  void viewDidChange() override;

 private:
  [[nodiscard]] UITextInput* input() const;
  [[nodiscard]] const UITextField* field() const;
  [[nodiscard]] UIEdgeInsets textInsets() const;
  void resetUnlessShown();

  QString shownText_;  // what the input item holds, without undecided text
  NSRange shownSelection_;
  bool listening_ = false;  // one side is telling the other, which need not tell it back
};

/// The part of a text that was replaced to make another of it, and by what.
struct TextEdit {
  NSRange range;
  QString replacement;
  friend bool operator==(const TextEdit&, const TextEdit&) = default;
};

/// How the text came to be after one edit. Of several possible answers it is the one that replaced
/// the selection; failing that, the one that ended at the caret.
[[nodiscard]] TextEdit editBetween(const QString& before, NSRange selection, const QString& after,
                                   int caret);

}  // namespace kindora
