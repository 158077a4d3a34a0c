// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QString>

#include "toolkit/quick/FaceItem.h"
#include "toolkit/view/UITextInput.h"

namespace kindora {

class UITextField;

/// Draws a text field or text view with an input item inside it, a TextField or TextArea, to which
/// the user types. Whatever changes there, by keys, an input method or an assistive tool, is told
/// to the view as an edit, and what the view makes of it is shown there: so the text is the view's.
/// While an input method composes, the view has what is composed as marked text, and only what
/// came of it is an edit. Keys that undo are the view's, too.
class TextInputItem : public kindora::FaceItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* inputItem READ inputItem WRITE setInputItem NOTIFY inputItemChanged)
  Q_PROPERTY(QString placeholder READ placeholder NOTIFY viewChanged)
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
  using FaceItem::FaceItem;
  ~TextInputItem() override { leaveInputItem(); }

  [[nodiscard]] QQuickItem* inputItem() const { return inputItem_; }
  void setInputItem(QQuickItem* item);
  [[nodiscard]] QString placeholder() const;
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

  /// The keyboard goes to the view.
  Q_INVOKABLE void beginEditing();
  Q_INVOKABLE void pressReturn();

  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void inputItemChanged();

 protected:
  void viewDidChange() override;

 private slots:
  void inputDidChange();
  void inputSelectionDidChange();

 private:
  [[nodiscard]] UITextInput* textInput() const;
  [[nodiscard]] const UITextField* textField() const;
  [[nodiscard]] UIEdgeInsets textInsets() const;
  [[nodiscard]] QString inputText() const;
  [[nodiscard]] QString inputPreedit() const;
  [[nodiscard]] int inputCaret() const;
  [[nodiscard]] NSRange inputSelection() const;
  void leaveInputItem();
  void inputFocusDidChange();
  void moveKeyboard();
  void showText();
  void dropPreedit();

  QPointer<QQuickItem> inputItem_;
  bool listening_ = false;  // one side is telling the other, which need not tell it back
  bool handlingKey_ = false;
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
