// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QMap>
#include <QProcess>
#include <QThread>
#include <QVariantMap>
#include <functional>

namespace kindora {

/// A bus of its own. Turns the event loop until what a test waits for is so.
class SessionBus {
 public:
  SessionBus() {
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1")});
    EXPECT_TRUE(daemon_.waitForReadyRead()) << daemon_.errorString().toStdString();
    address_ = QString::fromLocal8Bit(daemon_.readLine()).trimmed();
  }
  ~SessionBus() {
    for (const QString& name : names_) QDBusConnection::disconnectFromBus(name);
    daemon_.kill();
    daemon_.waitForFinished();
  }

  [[nodiscard]] const QString& address() const { return address_; }
  /// A connection as another program has it.
  [[nodiscard]] QDBusConnection connection() {
    names_.push_back(QStringLiteral("test-%1").arg(++made()));
    return QDBusConnection::connectToBus(address_, names_.back());
  }
  static void waitUntil(const std::function<bool()>& isSo) {
    while (!isSo()) {
      QCoreApplication::processEvents();
      QThread::yieldCurrentThread();
    }
  }

 private:
  static int& made() {
    static int count = 0;
    return count;
  }

  QProcess daemon_;
  QString address_;
  QStringList names_;
};

/// A desktop portal with the settings that a test gives it.
class DesktopPortal final : public QDBusVirtualObject {
 public:
  using Groups = QMap<QString, QVariantMap>;

  explicit DesktopPortal(const QDBusConnection& bus) : bus_(bus) {
    qDBusRegisterMetaType<Groups>();
    EXPECT_TRUE(bus_.registerVirtualObject(path(), this));
    EXPECT_TRUE(bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
  }

  /// Changes a setting and tells of it.
  void set(const QString& group, const QString& key, const QVariant& value) {
    settings[group][key] = value;
    QDBusMessage signal =
        QDBusMessage::createSignal(path(), QStringLiteral("org.freedesktop.portal.Settings"),
                                   QStringLiteral("SettingChanged"));
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    bus_.send(signal);
  }

  [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
    if (message.member() != QStringLiteral("ReadAll")) return false;
    Groups asked;
    for (const QString& group : message.arguments().value(0).toStringList()) {
      if (settings.contains(group)) asked[group] = settings[group];
    }
    ++reads;
    return connection.send(message.createReply(QVariant::fromValue(asked)));
  }

  Groups settings;
  int reads = 0;

 private:
  static QString path() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

  QDBusConnection bus_;
};

}  // namespace kindora
