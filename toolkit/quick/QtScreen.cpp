// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/QtScreen.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>

#include "toolkit/controllers/Screen.h"

namespace kindora {
namespace {

// The first of the app's windows that shows; null when none does.
const QQuickWindow* mainWindow() {
  if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) return nullptr;
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    const auto* quick = qobject_cast<QQuickWindow*>(window);
    if (quick != nullptr && quick->isVisible()) return quick;
  }
  return nullptr;
}

}  // namespace

double QtScreen::scale() const {
  const QQuickWindow* window = mainWindow();
  return window != nullptr ? window->effectiveDevicePixelRatio() : mainScreenScale();
}

CGRect QtScreen::bounds() const {
  if (const QQuickWindow* window = mainWindow()) {
    return {{0, 0}, {static_cast<double>(window->width()), static_cast<double>(window->height())}};
  }
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  const QSize size = screen->size();
  return {{0, 0}, {static_cast<double>(size.width()), static_cast<double>(size.height())}};
}

}  // namespace kindora
