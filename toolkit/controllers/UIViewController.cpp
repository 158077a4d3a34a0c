// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIViewController.h"

#include <QQmlEngine>

namespace kindora {

UIViewController::UIViewController()
    : ViewControllerLife(*this),
      ViewControllerItems(*this),
      ViewControllerContainment(*this),
      ViewControllerPresentation(*this),
      ViewControllerScene(*this) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

UIViewController::~UIViewController() = default;

UIViewRef UIViewController::outlet(std::string_view name) { return view()->viewWithName(name); }

}  // namespace kindora
