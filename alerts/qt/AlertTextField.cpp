// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/AlertTextField.h"

#include <QPointer>

namespace kindora {

void AlertTextField::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  const auto field = field_.lock();
  const std::string shown = text.toStdString();
  if (field && field->text() != shown) field->setText(shown);
  emit textChanged();
}

void AlertTextField::setPlaceholder(const QString& placeholder) {
  if (placeholder_ == placeholder) return;
  placeholder_ = placeholder;
  emit changed();
}

void AlertTextField::setSecure(bool secure) {
  if (secure_ == secure) return;
  secure_ = secure;
  emit changed();
}

void AlertTextField::connectField(const std::shared_ptr<UITextField>& field) {
  field_ = field;
  field->setPlaceholder(placeholder_.toStdString());
  field->setSecureTextEntry(secure_);
  field->setText(text_.toStdString());
  field->editingChanged = [self = QPointer(this)](UITextField& edited) {
    if (self) self->setText(QString::fromStdString(edited.text()));
  };
}

}  // namespace kindora
