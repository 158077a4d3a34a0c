// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>
#include <memory>

#include "toolkit/view/UITextField.h"

namespace kindora {

/// A line of text that an Alert asks for. The text is kept from one opening to the next.
class AlertTextField : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
  Q_PROPERTY(QString placeholder READ placeholder WRITE setPlaceholder NOTIFY changed)
  Q_PROPERTY(bool secure READ isSecure WRITE setSecure NOTIFY changed)

 public:
  using QObject::QObject;

  [[nodiscard]] const QString& text() const { return text_; }
  void setText(const QString& text);
  [[nodiscard]] const QString& placeholder() const { return placeholder_; }
  void setPlaceholder(const QString& placeholder);
  [[nodiscard]] bool isSecure() const { return secure_; }
  void setSecure(bool secure);

  /// Makes the field of an alert like this one and follows what is typed into it.
  void connectField(const std::shared_ptr<UITextField>& field);

 signals:
  void textChanged();
  void changed();

 private:
  QString text_;
  QString placeholder_;
  bool secure_ = false;
  std::weak_ptr<UITextField> field_;
};

}  // namespace kindora
