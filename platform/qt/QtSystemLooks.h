// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QObject>
#include <memory>

#include "platform/ObserverList.h"
#include "platform/qt/SettingsPortal.h"
#include "platform/services/SystemLooks.h"

namespace kindora {

/// The looks as the desktop portal tells them, and before it answers, or where it does not say, as
/// the application's palette and font have them. The environment variable KINDORA_LOOKS takes the
/// place of all these (see looksNamed).
class QtSystemLooks final : public QObject, public SystemLooks {
  Q_OBJECT

 public:
  QtSystemLooks();

  [[nodiscard]] const Looks& looks() const override { return looks_; }
  [[nodiscard]] Subscription observe(std::function<void()> observer) override;

  // Sees the application's palette and font change.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void look();

  std::unique_ptr<SettingsPortal> portal_;
  Looks looks_;
  ObserverList<> observers_;
};

/// The looks in words with commas between them: light, dark, contrast, still, and text=150 for
/// texts of 150 %. Unknown words are warned of.
[[nodiscard]] Looks looksNamed(const QByteArray& words);

/// The given looks, with what a desktop's settings say in place of it.
[[nodiscard]] Looks looksSetIn(const SettingsPortal& settings, Looks otherwise);

}  // namespace kindora
