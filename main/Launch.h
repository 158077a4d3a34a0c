// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQmlApplicationEngine>

namespace kindora {

/// Launches the app in a QGuiApplication: services, window, screens, and the engine that draws
/// them. False, with what is wrong on standard error, when the window cannot be drawn.
[[nodiscard]] bool launch(QQmlApplicationEngine& engine);

}  // namespace kindora
