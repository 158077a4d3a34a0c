// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <memory>

#include "platform/Geometry.h"
#include "platform/UIColor.h"
#include "toolkit/controllers/ControllerList.h"
#include "toolkit/controllers/UIViewControllerRef.h"
#include "toolkit/view/UIViewTint.h"

namespace kindora {

inline constexpr double UIWindowLevelNormal = 0;
inline constexpr double UIWindowLevelAlert = 2000;

/// A window: its root controller and the controllers presented above it. It knows no pixels. All
/// visible windows lie above each other within the one window that the window system shows.
class UIWindow : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("windows are made at launch")
  Q_PROPERTY(
      kindora::UIViewController* rootViewController READ root NOTIFY rootViewControllerChanged)
  Q_PROPERTY(kindora::ControllerList* presentations READ presentations CONSTANT)
  Q_PROPERTY(bool key READ isKeyWindow NOTIFY keyChanged)
  Q_PROPERTY(bool covered READ isCovered NOTIFY coveredChanged)

 public:
  UIWindow();
  ~UIWindow() override;

  [[nodiscard]] const UIColor& tintColor() const { return tintColor_; }
  void setTintColor(const UIColor& color);
  /// Dimmed, the window's tint is drawn in grey.
  [[nodiscard]] UIViewTintAdjustmentMode tintAdjustmentMode() const { return tintAdjustmentMode_; }
  void setTintAdjustmentMode(UIViewTintAdjustmentMode mode);
  /// The tint as it is drawn.
  [[nodiscard]] UIColor drawnTintColor() const;

  /// Windows of a higher level lie above those of a lower one.
  [[nodiscard]] double windowLevel() const { return windowLevel_; }
  void setWindowLevel(double level);

  /// True while a window of the alert level or above lies over this one: it stays in sight, but
  /// nothing reaches it.
  [[nodiscard]] bool isCovered() const;

  /// In points. A root view made in code is as large.
  [[nodiscard]] CGRect bounds() const { return {{0, 0}, size_}; }
  /// Told by whoever draws the window.
  Q_INVOKABLE void reportSize(double width, double height);

  [[nodiscard]] const UIViewControllerRef& rootViewController() const { return root_; }
  [[nodiscard]] UIViewController* root() const { return root_.get(); }
  void setRootViewController(const UIViewControllerRef& controller);
  /// Makes this the topmost window of its level and the one that has the keyboard; the root
  /// controller appears. The window that was key until now stays as it is.
  void makeKeyAndVisible();
  [[nodiscard]] bool isKeyWindow() const;
  /// True until the window is made visible. The root controller disappears with its window. A
  /// hidden window is not key; which one is key then, somebody has to say.
  [[nodiscard]] bool isHidden() const { return hidden_; }
  void setHidden(bool hidden);

  /// The controllers presented above the root, lowest first.
  [[nodiscard]] ControllerList* presentations() { return &presentations_; }

  /// What Esc, Alt+Left and the system's back mean: cancels the alert on top, else goes back in the
  /// visible navigation stack. False when there is nothing to go back to.
  Q_INVOKABLE bool goBack();

 signals:
  void rootViewControllerChanged();
  void tintColorChanged();
  void keyChanged();
  void coveredChanged();
  void sizeChanged();

 private:
  void placeRootView();

  UIColor tintColor_;
  UIViewTintAdjustmentMode tintAdjustmentMode_ = UIViewTintAdjustmentMode::automatic;
  double windowLevel_ = UIWindowLevelNormal;
  CGSize size_;
  bool hidden_ = true;
  UIViewControllerRef root_;
  ControllerList presentations_;
};

/// A window that is hidden as soon as nobody holds it, and deleted from the event loop.
[[nodiscard]] std::shared_ptr<UIWindow> makeWindow();

}  // namespace kindora
