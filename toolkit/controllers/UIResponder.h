// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include "toolkit/view/Responder.h"

namespace kindora {

enum class UIEventSubtype { none, motionShake };

/// A responder that hears motions, such as a shake. It hears them under a text field that has the
/// keyboard, too.
class UIResponder : public QObject, public Responder {
  Q_OBJECT

 public:
  UIResponder();
  ~UIResponder() override;

  [[nodiscard]] virtual bool canBecomeFirstResponder() const { return false; }
  /// Takes over as first responder; false when this one may not.
  bool becomeFirstResponder();
  bool resignFirstResponder();
  /// The one that hears motions; null when none does.
  [[nodiscard]] static UIResponder* motionResponder();

  virtual void motionEnded(UIEventSubtype /*motion*/) {}

 private:
  void respondingDidChange() override;
};

}  // namespace kindora
