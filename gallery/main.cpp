// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include "app/AppColors.h"
#include "app/AppearanceManager.h"
#include "app/ProgramStart.h"
#include "gallery/GalleryStoryboard.h"
#include "toolkit/controllers/PageUrl.h"
#include "toolkit/controllers/UIWindow.h"

int main(int argc, char* argv[]) {
  using namespace kindora;
  leaveNothingBehind();
  const QGuiApplication application(argc, argv);
  startProgram({.name = QStringLiteral("kindora-gallery"),
                .displayName = QStringLiteral("Kindora Gallery")});

  static UIWindow& window = *new UIWindow;  // outlives the screens
  window.setRootViewController(makeGalleryNavigationController());
  window.setTintColor(appColor());
  AppearanceManager::configureAppearance();
  window.makeKeyAndVisible();

  QQmlApplicationEngine engine;
  const QUrl file = pageUrl(u"Kindora.Gallery", u"GalleryWindow");
  return showWindows(engine, file) ? QGuiApplication::exec() : EXIT_FAILURE;
}
