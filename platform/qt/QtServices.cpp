// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtServices.h"

#include <memory>

#include "platform/qt/IcuTextService.h"
#include "platform/qt/MainQueue.h"
#include "platform/qt/QtHttpSessionFactory.h"
#include "platform/qt/QtJsonReader.h"
#include "platform/qt/QtPhotoService.h"
#include "platform/qt/QtResourceBundle.h"
#include "platform/qt/StandardConsole.h"

namespace kindora {

Services makeQtServices() {
  const auto mainQueue = std::make_shared<MainQueue>();
  return {
      .mainQueue = mainQueue,
      .http = std::make_shared<QtHttpSessionFactory>(),
      .json = std::make_shared<QtJsonReader>(),
      .bundle = std::make_shared<QtResourceBundle>(),
      .text = std::make_shared<IcuTextService>(),
      .console = std::make_shared<StandardConsole>(),
      .photos = std::make_shared<QtPhotoService>(mainQueue),
  };
}

}  // namespace kindora
