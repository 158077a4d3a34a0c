// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/SettingsPortal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>

namespace kindora {
namespace {

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPortalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QStringList kGroups{QStringLiteral("org.freedesktop.appearance"),
                          QStringLiteral("org.gnome.desktop.interface")};

using Groups = QMap<QString, QVariantMap>;

}  // namespace

SettingsPortal::SettingsPortal(const QDBusConnection& bus) {
  // A call on a closed connection would never be answered.
  if (!bus.isConnected()) return;
  qDBusRegisterMetaType<Groups>();
  qRegisterMetaType<QDBusVariant>();  // or the slot is not found by its name
  QDBusConnection(bus).connect(kPortal, kPortalPath, kSettings, QStringLiteral("SettingChanged"),
                               this, SLOT(settingChanged(QString, QString, QDBusVariant)));
  QDBusMessage call =
      QDBusMessage::createMethodCall(kPortal, kPortalPath, kSettings, QStringLiteral("ReadAll"));
  call << kGroups;
  auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<Groups> reply(*watcher);
    if (reply.isError()) return;
    const Groups groups = reply.value();
    for (auto group = groups.begin(); group != groups.end(); ++group) {
      settings_.insert(group.key(), group.value());
    }
    emit changed();
  });
}

QVariant SettingsPortal::value(const QString& group, const QString& key) const {
  return settings_.value(group).value(key);
}

void SettingsPortal::settingChanged(const QString& group, const QString& key,
                                    const QDBusVariant& value) {
  if (!kGroups.contains(group)) return;
  settings_[group].insert(key, value.variant());
  emit changed();
}

}  // namespace kindora
