// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Appearance.h"

#include <QFontDatabase>
#include <cmath>

#include "toolkit/controllers/Colors.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBar.h"

namespace kindora {

QFont resolvedFont(const UIFont& font) {
  static const bool hasAvenir = QFontDatabase::hasFamily(QStringLiteral("Avenir Next"));
  QFont result(hasAvenir ? QStringLiteral("Avenir Next") : QStringLiteral("Lato"));
  const QFont::Weight regular = font.name.starts_with("System") ? QFont::Normal : QFont::Medium;
  result.setWeight(font.name.ends_with("Bold") ? QFont::Bold : regular);
  result.setPixelSize(static_cast<int>(std::lround(font.pointSize)));
  return result;
}

Appearance::Appearance() {
  connect(UIApplication::sharedApplication(), &UIApplication::tintColorChanged, this,
          &Appearance::tintChanged);
}

QColor Appearance::tint() { return toQColor(tintColor()); }

UIColor Appearance::tintColor() {
  // Alerts lie above it in windows of their own.
  const std::vector<UIWindow*>& windows = UIApplication::sharedApplication()->windows();
  return windows.empty() ? kDefaultTintColor : windows.front()->drawnTintColor();
}

QColor Appearance::tintedText() { return tint().darker(165); }

QColor Appearance::barTint() { return toQColor(UINavigationBar::appearance().barTintColor); }
QColor Appearance::barForeground() { return toQColor(UINavigationBar::appearance().tintColor); }
QColor Appearance::barTitle() { return toQColor(UINavigationBar::appearance().titleColor); }
QFont Appearance::barTitleFont() { return resolvedFont(UINavigationBar::appearance().titleFont); }
QFont Appearance::tabFont() { return resolvedFont(UITabBarItem::appearance().titleFont); }
QFont Appearance::font(double points) { return resolvedFont({"AvenirNext-Medium", points}); }
QFont Appearance::boldFont(double points) { return resolvedFont({"AvenirNext-Bold", points}); }

}  // namespace kindora
