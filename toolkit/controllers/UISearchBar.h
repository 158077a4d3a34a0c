// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>
#include <memory>

#include "platform/Geometry.h"
#include "platform/UIColor.h"
#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/view/UITextField.h"

namespace kindora {

enum class UISearchBarStyle { standard, minimal };

/// A line with a text field in which the user types what to look for.
class UISearchBar : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by search controllers")
  Q_PROPERTY(kindora::ViewHandle searchTextField READ searchTextFieldHandle CONSTANT)
  Q_PROPERTY(QColor backgroundColor READ background NOTIFY lookChanged)
  Q_PROPERTY(double height READ height NOTIFY lookChanged)
  Q_PROPERTY(bool showsCancelButton READ showsCancelButton NOTIFY showsCancelButtonChanged)

 public:
  UISearchBar();
  ~UISearchBar() override;

  [[nodiscard]] UITextField& searchTextField() const { return *field_; }
  /// What the field shows, text that an input method has not decided on included.
  [[nodiscard]] QString text() const { return QString::fromStdString(field_->text()); }
  void setText(const QString& text) { field_->setText(text.toStdString()); }
  [[nodiscard]] CGRect frame() const { return frame_; }
  void setFrame(CGRect frame);
  /// Kept for the platform's interface: it has no say in how the bar is drawn.
  [[nodiscard]] UISearchBarStyle searchBarStyle() const { return style_; }
  void setSearchBarStyle(UISearchBarStyle style) { style_ = style; }
  [[nodiscard]] const UIColor& backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(const UIColor& color);
  [[nodiscard]] bool showsCancelButton() const { return showsCancelButton_; }
  void setShowsCancelButton(bool shows);

  [[nodiscard]] bool isFirstResponder() const { return field_->isFirstResponder(); }
  void resignFirstResponder() { field_->resignFirstResponder(); }

  // --- What the user does ---
  /// Presses the field, which takes the keyboard. One that passes through on its way from control
  /// to control presses nothing.
  Q_INVOKABLE void press();
  /// Replaces the whole text.
  Q_INVOKABLE void edit(const QString& text);
  Q_INVOKABLE void cancel() { emit cancelled(); }

  /// The table that has the bar above its rows gives it its width.
  Q_INVOKABLE void reportWidth(double width);
  [[nodiscard]] QColor background() const;
  [[nodiscard]] double height() const { return frame_.size.height; }

 signals:
  void lookChanged();
  void showsCancelButtonChanged();
  void pressed();
  void edited();
  void cancelled();

 private:
  [[nodiscard]] ViewHandle searchTextFieldHandle() const { return {field_}; }

  std::shared_ptr<UITextField> field_ = std::make_shared<UITextField>();
  std::shared_ptr<UITextFieldDelegate> fieldDelegate_;
  CGRect frame_{{0, 0}, {0, 44}};
  UISearchBarStyle style_ = UISearchBarStyle::standard;
  UIColor backgroundColor_ = UIColor::whiteColor();
  bool showsCancelButton_ = false;
};

}  // namespace kindora
