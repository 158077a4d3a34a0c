// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/services/QtServices.h"

#include <memory>

#include "platform/qt/services/IcuTextService.h"
#include "platform/qt/services/MainQueue.h"
#include "platform/qt/services/QtHttpSessionFactory.h"
#include "platform/qt/services/QtJsonReader.h"
#include "platform/qt/services/QtPhotoService.h"
#include "platform/qt/services/QtResourceBundle.h"
#include "platform/qt/services/StandardConsole.h"

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
