// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/Screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace kindora {

double mainScreenScale() {
  const QScreen* screen = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr
                              ? QGuiApplication::primaryScreen()
                              : nullptr;
  return screen != nullptr ? screen->devicePixelRatio() : 1;
}

}  // namespace kindora
