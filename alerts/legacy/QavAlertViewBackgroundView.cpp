// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/QavAlertViewBackgroundView.h"

#include "alerts/helpers/QavAutoLayout.h"

namespace kindora {

std::shared_ptr<QavAlertViewBackgroundView> QavAlertViewBackgroundView::make() {
  const std::shared_ptr<QavAlertViewBackgroundView> view(new QavAlertViewBackgroundView);
  view->setTranslatesAutoresizingMaskIntoConstraints(false);
  view->panel_->setTranslatesAutoresizingMaskIntoConstraints(false);
  view->addSubview(view->panel_);
  qav_alignEdgesWithSuperview(view->panel_, UIRectEdge::all);
  return view;
}

}  // namespace kindora
