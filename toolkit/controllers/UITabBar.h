// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "platform/UIFont.h"
#include "toolkit/view/OutletOwner.h"

namespace kindora {

/// How the title of every tab looks. Its colour is the window's tint while selected.
struct UITabBarItemAppearance {
  UIFont titleFont{"", 10};
};

/// One tab: title, glyph and the text in its bubble.
class UITabBarItem : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by controllers")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString imageName READ imageName NOTIFY changed)
  Q_PROPERTY(QString badgeValue READ badgeValue NOTIFY changed)

 public:
  /// The look of all tabs. Set at launch, before the first is drawn (configureAppearance does it).
  [[nodiscard]] static UITabBarItemAppearance& appearance();

  [[nodiscard]] const QString& title() const { return title_; }
  [[nodiscard]] const QString& imageName() const { return imageName_; }
  void setTitleAndImage(const QString& title, const QString& imageName);
  /// A null text is no badge; an empty one neither shows.
  [[nodiscard]] const QString& badgeValue() const { return badgeValue_; }
  void setBadgeValue(const QString& value);

 signals:
  void changed();

 private:
  QString title_;
  QString imageName_;
  QString badgeValue_;
};

/// The bar that holds a tab bar controller's tabs: a view with one control for each tab, whose
/// outlets are "tab0", "tab1" and so on; its own is "tabBar".
class UITabBar : public QObject, public OutletOwner {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by tab bar controllers")
  Q_PROPERTY(bool userInteractionEnabled READ isUserInteractionEnabled NOTIFY
                 userInteractionEnabledChanged)

 public:
  UITabBar();

  [[nodiscard]] const UIView& view() const { return *view_; }
  [[nodiscard]] bool isUserInteractionEnabled() const { return view_->isUserInteractionEnabled(); }
  void setUserInteractionEnabled(bool enabled);
  /// Adds the control of one more tab, to the right of the others.
  void addTab();

  [[nodiscard]] UIViewRef outlet(std::string_view name) override;

 signals:
  void userInteractionEnabledChanged();

 private:
  UIViewRef view_ = std::make_shared<UIView>();
};

}  // namespace kindora
