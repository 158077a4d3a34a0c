// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/fakes/FakeBundle.h"
#include "platform/fakes/FakeHttp.h"
#include "platform/fakes/FakeJson.h"
#include "platform/fakes/FakePhotos.h"
#include "platform/fakes/FakeText.h"
#include "platform/fakes/ManualQueue.h"
#include "platform/fakes/RecordingConsole.h"

namespace kindora {

/// The fakes in force, each shared with the installed services.
struct FakeServices {
  std::shared_ptr<ManualQueue> mainQueue;
  std::shared_ptr<FakeHttp> http;
  std::shared_ptr<FakeJson> json;
  std::shared_ptr<FakeBundle> bundle;
  std::shared_ptr<FakeText> text;
  std::shared_ptr<RecordingConsole> console;
  std::shared_ptr<FakePhotos> photos;
};

/// Installs fresh fakes for all services and returns them.
FakeServices installFakeServices();

}  // namespace kindora
