// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What the logic needs of the phone, installed once at launch.
#pragma once

#include <memory>

#include "platform/services/Console.h"
#include "platform/services/DispatchQueue.h"
#include "platform/services/HttpSession.h"
#include "platform/services/Json.h"
#include "platform/services/PhotoService.h"
#include "platform/services/ResourceBundle.h"
#include "platform/services/TextService.h"

namespace kindora {

struct Services {
  std::shared_ptr<DispatchQueue> mainQueue;
  std::shared_ptr<HttpSessionFactory> http;
  std::shared_ptr<JsonReader> json;
  std::shared_ptr<ResourceBundle> bundle;
  std::shared_ptr<TextService> text;
  std::shared_ptr<Console> console;
  std::shared_ptr<PhotoService> photos;
};

/// Installs the services, all of which must be given. A program's start does it (startProgram),
/// once and before any other thread runs; tests install their own before each test.
void installServices(Services installed);

/// The services in force; stops when none were installed.
[[nodiscard]] const Services& services();

}  // namespace kindora
