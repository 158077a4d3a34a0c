// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtSystemLooks.h"

#include <QDBusConnection>
#include <QEvent>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>
#include <QtGlobal>
#include <algorithm>
#include <utility>

namespace kindora {
namespace {

constexpr double kMostScale = 2;
// Points of the application's font up to which texts have their usual size: no desktop's own font
// is larger unless its user wants it.
constexpr double kUsualFontSize = 12;

// Also of what is not a number.
double textScale(double asked) { return asked > 1 ? std::min(asked, kMostScale) : 1; }

// Without an address, asking for the bus might start one.
bool hasSessionBus() {
  return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
         QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

bool isGraphical() {
  return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

bool isDark() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
  if (scheme != Qt::ColorScheme::Unknown) return scheme == Qt::ColorScheme::Dark;
#endif
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

Looks looksOfApplication() {
  if (!isGraphical()) return {};
  return {.dark = isDark(),
          .textScale = textScale(QGuiApplication::font().pointSizeF() / kUsualFontSize)};
}

}  // namespace

QtSystemLooks::QtSystemLooks() {
  if (qEnvironmentVariableIsSet("KINDORA_LOOKS")) {
    looks_ = looksNamed(qgetenv("KINDORA_LOOKS"));
    return;
  }
  if (isGraphical()) {
    QCoreApplication::instance()->installEventFilter(this);
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this,
            &QtSystemLooks::look);
#endif
  }
  if (hasSessionBus()) {
    portal_ = std::make_unique<SettingsPortal>(QDBusConnection::sessionBus());
    connect(portal_.get(), &SettingsPortal::changed, this, &QtSystemLooks::look);
  }
  look();
}

Subscription QtSystemLooks::observe(std::function<void()> observer) {
  return observers_.add(std::move(observer));
}

bool QtSystemLooks::eventFilter(QObject* watched, QEvent* event) {
  if (watched == QCoreApplication::instance() &&
      (event->type() == QEvent::ApplicationPaletteChange ||
       event->type() == QEvent::ApplicationFontChange)) {
    look();
  }
  return false;
}

void QtSystemLooks::look() {
  const Looks now = portal_ ? looksSetIn(*portal_, looksOfApplication()) : looksOfApplication();
  if (now == looks_) return;
  looks_ = now;
  observers_.notify();
}

Looks looksNamed(const QByteArray& words) {
  Looks looks;
  for (const QByteArray& each : words.split(',')) {
    const QByteArray word = each.trimmed();
    if (word == "dark") {
      looks.dark = true;
    } else if (word == "contrast") {
      looks.highContrast = true;
    } else if (word == "still") {
      looks.reducedMotion = true;
    } else if (word.startsWith("text=")) {
      looks.textScale = textScale(word.mid(5).toDouble() / 100);
    } else if (word != "light" && !word.isEmpty()) {
      qWarning("KINDORA_LOOKS: unknown word \"%s\"", word.constData());
    }
  }
  return looks;
}

Looks looksSetIn(const SettingsPortal& settings, Looks otherwise) {
  const QString common = QStringLiteral("org.freedesktop.appearance");
  const QString desktop = QStringLiteral("org.gnome.desktop.interface");
  Looks looks = otherwise;
  const uint scheme = settings.value(common, QStringLiteral("color-scheme")).toUInt();
  if (scheme == 1) looks.dark = true;
  if (scheme == 2) looks.dark = false;
  const QVariant contrast = settings.value(common, QStringLiteral("contrast"));
  if (contrast.isValid()) looks.highContrast = contrast.toUInt() == 1;
  const QVariant animated = settings.value(desktop, QStringLiteral("enable-animations"));
  const QVariant reduced = settings.value(common, QStringLiteral("reduced-motion"));
  if (animated.isValid()) looks.reducedMotion = !animated.toBool();
  if (reduced.toUInt() == 1) looks.reducedMotion = true;
  // Programs on X11 have it as dots an inch, by which Qt scales everything already.
  const QVariant scale = settings.value(desktop, QStringLiteral("text-scaling-factor"));
  if (scale.isValid() && QGuiApplication::platformName() != QStringLiteral("xcb")) {
    looks.textScale = textScale(scale.toDouble());
  }
  return looks;
}

}  // namespace kindora
