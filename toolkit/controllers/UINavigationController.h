// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include "platform/UIColor.h"
#include "toolkit/controllers/ControllerList.h"
#include "toolkit/controllers/UINavigationBar.h"
#include "toolkit/controllers/UINavigationItem.h"
#include "toolkit/controllers/UIViewController.h"

namespace kindora {

/// A stack of screens, of which the top is seen. Pushing and popping take effect at once; animated,
/// the appearance callbacks frame the time that the change takes on the screen.
class UINavigationController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(kindora::ControllerList* pages READ pages CONSTANT)
  Q_PROPERTY(QColor backgroundColor READ background NOTIFY backgroundColorChanged)
  Q_PROPERTY(kindora::UINavigationBar* navigationBar READ navigationBar CONSTANT)
  Q_PROPERTY(kindora::UIViewController* topViewController READ top NOTIFY stackChanged)
  Q_PROPERTY(bool showsBackButton READ showsBackButton NOTIFY canGoBackChanged)
  Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY canGoBackChanged)
  Q_PROPERTY(bool transitioning READ isTransitioning NOTIFY transitionChanged)
  Q_PROPERTY(double topProgress READ topProgress NOTIFY topProgressChanged)
  Q_PROPERTY(double barProgress READ barProgress NOTIFY topProgressChanged)

 public:
  explicit UINavigationController(const UIViewControllerRef& root);
  ~UINavigationController() override;

  [[nodiscard]] const std::vector<UIViewControllerRef>& viewControllers() const { return stack_; }
  [[nodiscard]] UIViewControllerRef topViewController() const { return stack_.back(); }
  /// What the controller or its container presents, else the top of the stack.
  [[nodiscard]] UIViewControllerRef visibleViewController();
  [[nodiscard]] UINavigationBar* navigationBar() { return &bar_; }

  /// Behind all pages.
  [[nodiscard]] const UIColor& backgroundColor() const { return backgroundColor_; }
  void setBackgroundColor(const UIColor& color);

  void pushViewController(const UIViewControllerRef& controller, bool animated);
  void popViewController(bool animated);
  void popToRootViewController(bool animated);
  /// Pops what lies above the controller, which must be in the stack.
  void popToViewController(const UIViewController& controller, bool animated);

  /// What is drawn, lowest first: the stack, and during a pop the page that leaves.
  [[nodiscard]] ControllerList* pages() { return &pages_; }
  /// How far the last page has come in from the side, 0 to 1.
  [[nodiscard]] double topProgress() const { return topProgress_; }
  /// How far the bar has come to show what belongs to the top page, 0 to 1.
  [[nodiscard]] double barProgress() const;
  [[nodiscard]] bool isTransitioning() const { return transition_ != nullptr; }

  /// True when the top page has a way back: there is where to, and it does not hide the button.
  [[nodiscard]] bool showsBackButton() const;
  /// True when the user may take it now: no change is under way.
  [[nodiscard]] bool canGoBack() const;
  Q_INVOKABLE bool goBack() override;

  /// The back gesture: began, moved to how far the page is still in (1 to 0), and let go. It does
  /// not go back when the back button was hidden, the stack changed or went out of sight meanwhile.
  Q_INVOKABLE bool beginBackGesture();
  Q_INVOKABLE void moveBackGesture(double topProgress);
  Q_INVOKABLE void endBackGesture(bool goesBack);
  /// The same, let go while the page moves out at that speed, in its widths a second: it goes back
  /// when the page, let glide, would come to rest far enough out.
  Q_INVOKABLE void releaseBackGesture(double speed);

  void viewWillDisappear(bool animated) override;

  [[nodiscard]] std::vector<UIViewController*> visibleChildren() const override;
  [[nodiscard]] QUrl page() const override;

 signals:
  void backgroundColorChanged();
  void stackChanged();
  void canGoBackChanged();
  void transitionChanged();
  void topProgressChanged();

 private:
  struct Transition;

  [[nodiscard]] QColor background() const;
  [[nodiscard]] UIViewController* top() const { return stack_.back().get(); }
  void adopt(const UIViewControllerRef& controller);
  void change(const UIViewControllerRef& leaving, bool animated);
  void run(double from, double to);
  void cancelGesture();
  void finish();
  void setTopProgress(double progress);

  std::vector<UIViewControllerRef> stack_;
  ControllerList pages_;
  UINavigationBar bar_;
  UIColor backgroundColor_ = UIColor::clearColor();
  std::shared_ptr<Transition> transition_;
  double topProgress_ = 1;
};

}  // namespace kindora
