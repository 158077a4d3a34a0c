// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlApplicationEngine>

#include "platform/qt/QtServices.h"
#include "platform/services/Services.h"

namespace kindora {

/// Launches the gallery in a QGuiApplication: services, window, pages, and the engine that draws
/// them. False, with what is wrong on standard error, when the window cannot be drawn.
[[nodiscard]] bool launchGallery(QQmlApplicationEngine& engine,
                                 Services installed = makeQtServices());

}  // namespace kindora
