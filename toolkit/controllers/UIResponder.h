// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace kindora {

enum class UIEventSubtype { none, motionShake };

/// Something that can hear events which have no place on the screen, such as a shake. At most one,
/// the first responder, hears them.
class UIResponder : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
  ~UIResponder() override;

  [[nodiscard]] virtual bool canBecomeFirstResponder() const { return false; }
  /// Takes over as first responder; false when this one may not.
  bool becomeFirstResponder();
  bool resignFirstResponder();
  [[nodiscard]] bool isFirstResponder() const;
  [[nodiscard]] static UIResponder* firstResponder();

  virtual void motionEnded(UIEventSubtype /*motion*/) {}
};

}  // namespace kindora
