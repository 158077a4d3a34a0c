// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/Launch.h"

#include <utility>

#include "app/AppColors.h"
#include "app/AppearanceManager.h"
#include "app/ProgramStart.h"
#include "gallery/GalleryStoryboard.h"
#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

bool launchGallery(QQmlApplicationEngine& engine, Services installed) {
  startProgram(
      {.name = QStringLiteral("kindora-gallery"), .displayName = QStringLiteral("Kindora Gallery")},
      std::move(installed));

  static UIWindow& window = *new UIWindow;  // outlives the screens
  window.setRootViewController(makeGalleryNavigationController());
  window.setTintColor(appColor());
  AppearanceManager::configureAppearance();
  window.makeKeyAndVisible();

  return showWindows(engine, pageUrl(u"Kindora.Gallery", u"GalleryWindow"));
}

}  // namespace kindora
