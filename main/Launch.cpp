// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "main/Launch.h"

#include <memory>
#include <utility>

#include "app/AppDelegate.h"
#include "app/ProgramStart.h"
#include "main/MainStoryboard.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {

bool launch(QQmlApplicationEngine& engine, Services installed) {
  startProgram({.name = QStringLiteral("kindora"),
                .displayName = QStringLiteral("Kindora"),
                .desktopFileName = QStringLiteral("org.kindora.Kindora")},
               std::move(installed));

  AppDelegate& delegate = AppDelegate::sharedDelegate();
  delegate.window = std::make_shared<UIWindow>();
  delegate.window->setRootViewController(makeRootTabBarController());
  delegate.applicationDidFinishLaunching();
  delegate.window->makeKeyAndVisible();

  return showWindows(engine, pageUrl(u"Kindora.Main", u"Main"));
}

}  // namespace kindora
