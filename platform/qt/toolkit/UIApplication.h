// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>

#include "platform/qt/toolkit/UIResponder.h"
#include "platform/qt/toolkit/UIWindow.h"

namespace kindora {

/// The one application object: its key window, and the way by which motions reach the first
/// responder.
class UIApplication final : public QObject {
  Q_OBJECT

 public:
  [[nodiscard]] static UIApplication* sharedApplication();

  [[nodiscard]] bool applicationSupportsShakeToEdit() const { return supportsShakeToEdit_; }
  void setApplicationSupportsShakeToEdit(bool supports);

  [[nodiscard]] UIWindow* keyWindow() const { return keyWindow_; }
  void setKeyWindow(UIWindow* window);

  /// True while a motion would reach somebody; sensors may rest otherwise.
  [[nodiscard]] bool listensForMotion() const;
  /// Tells the first responder that the phone was shaken, if shakes are supported.
  Q_INVOKABLE void shake();

 signals:
  void listensForMotionChanged();

 private:
  UIApplication() = default;
  bool supportsShakeToEdit_ = false;
  QPointer<UIWindow> keyWindow_;
};

}  // namespace kindora
