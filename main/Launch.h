// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlApplicationEngine>

#include "platform/qt/QtServices.h"
#include "platform/services/Services.h"

namespace kindora {

/// Launches the app in a QGuiApplication: services, window, screens, and the engine that draws
/// them. False, with what is wrong on standard error, when the window cannot be drawn.
[[nodiscard]] bool launch(QQmlApplicationEngine& engine, Services installed = makeQtServices());

}  // namespace kindora
