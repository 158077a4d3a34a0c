// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>
#include <QString>

#include "platform/Geometry.h"
#include "platform/UIColor.h"
#include "toolkit/view/Responder.h"

namespace kindora {

enum class UISearchBarStyle { standard, minimal };

/// A line in which the user types what to look for while it has the keyboard.
class UISearchBar : public QObject, public Responder {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by search controllers")
  Q_PROPERTY(QString text READ text NOTIFY textChanged)
  Q_PROPERTY(QColor backgroundColor READ background NOTIFY lookChanged)
  Q_PROPERTY(double height READ height NOTIFY lookChanged)
  Q_PROPERTY(bool firstResponder READ isResponding NOTIFY firstResponderChanged)
  Q_PROPERTY(bool showsCancelButton READ showsCancelButton NOTIFY showsCancelButtonChanged)

 public:
  UISearchBar() : Responder(ResponderEvents::keys) {}

  [[nodiscard]] const QString& text() const { return text_; }
  void setText(const QString& text);
  [[nodiscard]] CGRect frame() const { return frame_; }
  void setFrame(CGRect frame);
  /// Kept for the platform's interface: it has no say in how the bar is drawn.
  [[nodiscard]] UISearchBarStyle searchBarStyle() const { return style_; }
  void setSearchBarStyle(UISearchBarStyle style) { style_ = style; }
  [[nodiscard]] const UIColor& backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(const UIColor& color);
  [[nodiscard]] bool showsCancelButton() const { return showsCancelButton_; }
  void setShowsCancelButton(bool shows);

  void resignFirstResponder() { setFirstResponder(false); }

  // --- What the user does ---
  Q_INVOKABLE void edit(const QString& text);
  Q_INVOKABLE void setFirstResponder(bool first);
  Q_INVOKABLE void cancel() { emit cancelled(); }

  [[nodiscard]] QColor background() const;
  [[nodiscard]] double height() const { return frame_.size.height; }

 signals:
  void textChanged();
  void lookChanged();
  void firstResponderChanged();
  void showsCancelButtonChanged();
  void edited();
  void cancelled();

 private:
  void respondingDidChange() override { emit firstResponderChanged(); }

  QString text_;
  CGRect frame_{{0, 0}, {0, 44}};
  UISearchBarStyle style_ = UISearchBarStyle::standard;
  UIColor backgroundColor_ = UIColor::whiteColor();
  bool showsCancelButton_ = false;
};

}  // namespace kindora
