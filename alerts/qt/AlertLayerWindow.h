// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <memory>

#include "platform/qt/toolkit/UIViewController.h"
#include "platform/qt/toolkit/UIWindow.h"

namespace kindora {

/// The window of the toolkit in which the alerts of a Qt Quick window are shown. It becomes the key
/// window at once, and installs what views need of the system unless that has been done.
class AlertLayerWindow : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::UIWindow* window READ window CONSTANT)

 public:
  explicit AlertLayerWindow(QObject* parent = nullptr);
  ~AlertLayerWindow() override;

  [[nodiscard]] UIWindow* window() const { return window_.get(); }

 private:
  UIViewControllerRef root_;
  std::shared_ptr<UIWindow> window_;
};

}  // namespace kindora
