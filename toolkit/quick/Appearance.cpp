// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Appearance.h"

#include <QFontDatabase>
#include <cmath>

#include "platform/services/ViewServices.h"
#include "toolkit/controllers/Colors.h"
#include "toolkit/controllers/UIApplication.h"
#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UITabBar.h"
#include "toolkit/quick/QtViewServices.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {

namespace {

QFont sized(const UIFont& font, double scale) {
  static const bool hasAvenir = QFontDatabase::hasFamily(QStringLiteral("Avenir Next"));
  QFont result(hasAvenir ? QStringLiteral("Avenir Next") : QStringLiteral("Lato"));
  const QFont::Weight regular = font.name.starts_with("System") ? QFont::Normal : QFont::Medium;
  result.setWeight(font.name.ends_with("Bold") ? QFont::Bold : regular);
  result.setPixelSize(static_cast<int>(std::lround(font.pointSize * scale)));
  return result;
}

}  // namespace

QFont resolvedFont(const UIFont& font) {
  return sized(font, font.scales ? theme::looks().textScale : 1);
}

Appearance::Appearance() {
  ensureViewServices();
  looks_ = viewServices().looks->observe([this] { emit tintChanged(); });
  connect(UIApplication::sharedApplication(), &UIApplication::tintColorChanged, this,
          &Appearance::tintChanged);
}

QColor Appearance::tint() { return toQColor(tintColor()); }

UIColor Appearance::tintColor() {
  // Alerts lie above it in windows of their own.
  const std::vector<UIWindow*>& windows = UIApplication::sharedApplication()->windows();
  return windows.empty() ? kDefaultTintColor : windows.front()->drawnTintColor();
}

QColor Appearance::tintedText() { return toQColor(theme::tintedText(tintColor())); }

QColor Appearance::barTint() { return toQColor(UINavigationBar::appearance().barTintColor); }
QColor Appearance::barForeground() { return toQColor(UINavigationBar::appearance().tintColor); }
QColor Appearance::barTitle() { return toQColor(UINavigationBar::appearance().titleColor); }
QFont Appearance::barTitleFont() { return sized(UINavigationBar::appearance().titleFont, 1); }
QFont Appearance::tabFont() { return sized(UITabBarItem::appearance().titleFont, 1); }
QFont Appearance::font(double points) { return font(points, theme::looks().textScale); }
QFont Appearance::font(double points, double scale) {
  return sized({"AvenirNext-Medium", points}, scale);
}
QFont Appearance::boldFont(double points) { return boldFont(points, theme::looks().textScale); }
QFont Appearance::boldFont(double points, double scale) {
  return sized({"AvenirNext-Bold", points}, scale);
}

}  // namespace kindora
