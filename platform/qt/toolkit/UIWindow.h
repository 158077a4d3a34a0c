// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <memory>

#include "platform/UIColor.h"
#include "platform/qt/toolkit/ControllerList.h"

namespace kindora {

class UIViewController;
using UIViewControllerRef = std::shared_ptr<UIViewController>;

/// The window: its root controller and the controllers presented above it. It knows no pixels.
class UIWindow : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("windows are made at launch")
  Q_PROPERTY(
      kindora::UIViewController* rootViewController READ root NOTIFY rootViewControllerChanged)
  Q_PROPERTY(kindora::ControllerList* presentations READ presentations CONSTANT)

 public:
  UIWindow();
  ~UIWindow() override;

  [[nodiscard]] const UIColor& tintColor() const { return tintColor_; }
  void setTintColor(const UIColor& color);

  [[nodiscard]] const UIViewControllerRef& rootViewController() const { return root_; }
  [[nodiscard]] UIViewController* root() const { return root_.get(); }
  void setRootViewController(const UIViewControllerRef& controller);
  /// Makes this the window that the user sees: the root controller appears.
  void makeKeyAndVisible();

  /// The controllers presented above the root, lowest first.
  [[nodiscard]] ControllerList* presentations() { return &presentations_; }

  /// What Esc, Alt+Left and the system's back mean: cancels the alert on top, else goes back in the
  /// visible navigation stack. False when there is nothing to go back to.
  Q_INVOKABLE bool goBack();

 signals:
  void rootViewControllerChanged();
  void tintColorChanged();

 private:
  UIColor tintColor_;
  UIViewControllerRef root_;
  ControllerList presentations_;
};

}  // namespace kindora
