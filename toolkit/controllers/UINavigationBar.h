// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "platform/UIColor.h"
#include "platform/UIFont.h"

namespace kindora {

/// How every navigation bar looks.
struct UINavigationBarAppearance {
  UIColor barTintColor = UIColor::whiteColor();
  UIColor tintColor = UIColor::blackColor();  ///< of bar buttons and the back arrow
  UIColor titleColor = UIColor::blackColor();
  UIFont titleFont{"", 17};
};

/// The bar above a navigation controller's pages.
class UINavigationBar : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by navigation controllers")

 public:
  /// The look of all bars. Set at launch, before the first is drawn (configureAppearance does it).
  [[nodiscard]] static UINavigationBarAppearance& appearance();
  /// Tells that the bar wants to be laid out again. Kept for the platform's interface: the bar is
  /// drawn anew by itself when its item changes.
  void setNeedsLayout() { emit layoutRequested(); }

 signals:
  void layoutRequested();
};

}  // namespace kindora
