// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QPointer>
#include <vector>

#include "toolkit/controllers/UIResponder.h"
#include "toolkit/controllers/UIWindow.h"
#include "toolkit/controllers/WindowList.h"

class QJSEngine;
class QQmlEngine;

namespace kindora {

/// The one application object: its windows, and the way by which motions reach whoever hears them.
class UIApplication final : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(kindora::WindowList* windowList READ windowList CONSTANT)
  Q_PROPERTY(kindora::UIWindow* keyWindow READ keyWindow NOTIFY keyWindowChanged)

 public:
  [[nodiscard]] static UIApplication* sharedApplication();
  /// The same, for QML.
  [[nodiscard]] static UIApplication* create(QQmlEngine* qmlEngine, QJSEngine* jsEngine);

  [[nodiscard]] bool applicationSupportsShakeToEdit() const { return supportsShakeToEdit_; }
  void setApplicationSupportsShakeToEdit(bool supports);

  [[nodiscard]] UIWindow* keyWindow() const { return keyWindow_; }
  void setKeyWindow(UIWindow* window);
  /// Those that are visible, lowest first: by level, and within a level by when each was last made
  /// visible.
  [[nodiscard]] const std::vector<UIWindow*>& windows() const { return windowList_.items(); }
  [[nodiscard]] WindowList* windowList() { return &windowList_; }
  /// Goes back in the key window.
  Q_INVOKABLE bool goBack();
  /// For windows, when they become visible or change their level.
  void orderWindow(UIWindow& window);
  /// For windows, when they are hidden or gone.
  void removeWindow(UIWindow& window);

  /// True while a motion would reach somebody; sensors may rest otherwise.
  [[nodiscard]] bool listensForMotion() const;
  /// Tells whoever hears motions that the phone was shaken, if shakes are supported.
  Q_INVOKABLE void shake();

 signals:
  void listensForMotionChanged();
  void keyWindowChanged();
  /// The lowest window's tint, or how it is drawn.
  void tintColorChanged();

 private:
  void tellOrder();

  UIApplication() = default;
  bool supportsShakeToEdit_ = false;
  QPointer<UIWindow> keyWindow_;
  WindowList windowList_;
};

}  // namespace kindora
