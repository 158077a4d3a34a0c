// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <memory>

#include "toolkit/controllers/UIViewController.h"
#include "toolkit/controllers/UIWindow.h"

namespace kindora {

/// The window of the toolkit in which the alerts of a Qt Quick window are shown. It becomes the key
/// window at once, and installs what views need of the system unless that has been done.
class AlertLayerWindow : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool shows READ shows NOTIFY showsChanged)

 public:
  explicit AlertLayerWindow(QObject* parent = nullptr);
  ~AlertLayerWindow() override;

  /// Whether there is anything to see: something is presented in the window, or an alert view has
  /// a window of its own.
  [[nodiscard]] bool shows() const { return shows_; }

 signals:
  void showsChanged();

 private:
  void update();

  bool shows_ = false;
  UIViewControllerRef root_;
  std::shared_ptr<UIWindow> window_;
};

}  // namespace kindora
