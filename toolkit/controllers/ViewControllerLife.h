// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "platform/Subscription.h"
#include "toolkit/view/UIViewRef.h"

namespace kindora {

class UIViewController;
struct ViewHandle;

/// A controller's root view, made on first use, and what the controller is told as that view is
/// made, laid out, comes onto the screen and leaves it.
class ViewControllerLife {
 public:
  ViewControllerLife(const ViewControllerLife&) = delete;
  ViewControllerLife& operator=(const ViewControllerLife&) = delete;

  /// The root view; loads it on first use.
  [[nodiscard]] const UIViewRef& view();
  [[nodiscard]] bool isViewLoaded() const { return view_ != nullptr; }
  void loadViewIfNeeded();
  /// Makes the root view. One without a name is drawn as its record and the records inside it say,
  /// and needs no page.
  [[nodiscard]] virtual UIViewRef loadView();
  /// The same as view, for QML.
  [[nodiscard]] ViewHandle rootView();

  virtual void viewDidLoad() {}
  virtual void viewWillAppear(bool /*animated*/) {}
  virtual void viewDidAppear(bool /*animated*/) {}
  virtual void viewWillDisappear(bool /*animated*/) {}
  virtual void viewDidDisappear(bool /*animated*/) {}
  /// After each layout of the root view.
  virtual void viewDidLayoutSubviews() {}

  /// For containers: starts and ends the change from hidden to visible or back. Calls that do not
  /// change anything are ignored, so that each callback comes once, will before did.
  void beginAppearanceTransition(bool appearing, bool animated);
  void endAppearanceTransition();
  /// From viewDidAppear to viewWillDisappear.
  [[nodiscard]] bool isVisible() const { return appearance_ == Appearance::appeared; }
  /// From viewWillAppear to viewWillDisappear.
  [[nodiscard]] bool isComingOrVisible() const {
    return appearance_ == Appearance::appearing || appearance_ == Appearance::appeared;
  }

 protected:
  explicit ViewControllerLife(UIViewController& self) : self_(self) {}
  ~ViewControllerLife() = default;

 private:
  enum class Appearance { disappeared, appearing, appeared, disappearing };

  UIViewController& self_;
  UIViewRef view_;
  Subscription layouts_;
  Appearance appearance_ = Appearance::disappeared;
  bool animatedAppearance_ = false;
};

}  // namespace kindora
