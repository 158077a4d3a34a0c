// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>

#include "app/ProgramStart.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {
namespace {

// Compiled alone: it is a whole program's start.
[[maybe_unused]] bool start(int argc, char* argv[], QQmlApplicationEngine& engine) {
#include "examples/app/ProgramStart.h.1"
}

}  // namespace
}  // namespace kindora
