// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeServices.h"

#include "platform/services/Services.h"

namespace kindora {

FakeServices installFakeServices() {
  const auto mainQueue = std::make_shared<ManualQueue>();
  FakeServices fakes{
      .mainQueue = mainQueue,
      .http = std::make_shared<FakeHttp>(),
      .json = std::make_shared<FakeJson>(),
      .bundle = std::make_shared<FakeBundle>(),
      .text = std::make_shared<FakeText>(),
      .console = std::make_shared<RecordingConsole>(),
      .photos = std::make_shared<FakePhotos>(mainQueue),
  };
  installServices({
      .mainQueue = fakes.mainQueue,
      .http = fakes.http,
      .json = fakes.json,
      .bundle = fakes.bundle,
      .text = fakes.text,
      .console = fakes.console,
      .photos = fakes.photos,
  });
  return fakes;
}

}  // namespace kindora
