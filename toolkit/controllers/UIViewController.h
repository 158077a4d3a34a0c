// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A screen or a container of screens. Each of its concerns is a class of its own: its life, its
// place among the others, what it presents, what bars show of it, and the scene that it was made
// from. It knows no pixels; the QML file that its `page` names draws it.
//
// Controllers are shared; make them with makeViewController. Main thread only.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QString>
#include <QUrl>
#include <memory>
#include <string_view>
#include <utility>

#include "toolkit/controllers/UIResponder.h"
#include "toolkit/controllers/UIViewControllerRef.h"
#include "toolkit/controllers/ViewControllerContainment.h"
#include "toolkit/controllers/ViewControllerItems.h"
#include "toolkit/controllers/ViewControllerLife.h"
#include "toolkit/controllers/ViewControllerPresentation.h"
#include "toolkit/controllers/ViewControllerScene.h"
#include "toolkit/view/OutletOwner.h"

Q_MOC_INCLUDE("toolkit/controllers/UINavigationItem.h")
Q_MOC_INCLUDE("toolkit/controllers/UITabBar.h")
Q_MOC_INCLUDE("toolkit/controllers/ViewHandle.h")

namespace kindora {

class UIViewController : public kindora::UIResponder,
                         public OutletOwner,
                         public std::enable_shared_from_this<UIViewController>,
                         public ViewControllerLife,
                         public ViewControllerItems,
                         public ViewControllerContainment,
                         public ViewControllerPresentation,
                         public ViewControllerScene {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
  Q_PROPERTY(QUrl page READ page CONSTANT)
  Q_PROPERTY(kindora::UINavigationItem* navigationItem READ navigationItem CONSTANT)
  Q_PROPERTY(kindora::UITabBarItem* tabBarItem READ tabBarItem CONSTANT)
  Q_PROPERTY(
      double presentationProgress READ presentationProgress NOTIFY presentationProgressChanged)
  Q_PROPERTY(bool coversPresenter READ coversPresenter CONSTANT)
  Q_PROPERTY(QUrl presentedPage READ presentedPage CONSTANT)
  Q_PROPERTY(kindora::ViewHandle rootView READ rootView CONSTANT)
  Q_PROPERTY(kindora::ViewHandle presentationContainer READ presentationContainer CONSTANT)

 public:
  UIViewController();
  ~UIViewController() override;

  /// Among the views inside the root view.
  [[nodiscard]] UIViewRef outlet(std::string_view name) override;

  /// The closure, which does nothing once this controller has gone.
  template <typename Closure>
  [[nodiscard]] Completion guarded(Closure closure) {
    return [alive = weak_from_this(), closure = std::move(closure)] {
      if (const auto self = alive.lock()) closure();
    };
  }

 signals:
  void titleChanged();
  void presentationProgressChanged();
};

/// Makes a controller that is deleted from the event loop once nobody holds it, since it may well
/// be let go of inside one of its own calls.
template <typename Controller, typename... Arguments>
[[nodiscard]] std::shared_ptr<Controller> makeViewController(Arguments&&... arguments) {
  return {new Controller(std::forward<Arguments>(arguments)...),
          [](Controller* controller) { controller->deleteLater(); }};
}

}  // namespace kindora
