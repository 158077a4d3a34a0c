// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QHash>
#include <QObject>
#include <QVariant>

namespace kindora {

/// The desktop's settings of how programs look, as the desktop portal on a bus tells them. Nothing
/// waits for it: there are no settings until it has answered, and none ever without a portal.
class SettingsPortal : public QObject {
  Q_OBJECT

 public:
  explicit SettingsPortal(const QDBusConnection& bus);

  /// Invalid when the desktop does not say.
  [[nodiscard]] QVariant value(const QString& group, const QString& key) const;

 signals:
  /// Some have another value than before.
  void changed();

 private slots:
  void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  QHash<QString, QVariantMap> settings_;
};

}  // namespace kindora
