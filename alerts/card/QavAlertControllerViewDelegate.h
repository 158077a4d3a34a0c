// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "alerts/card/QavAlertAction.h"

namespace kindora {

class QavAlertControllerView;

/// Hears what is chosen on an alert's card.
class QavAlertControllerViewDelegate {
 public:
  virtual ~QavAlertControllerViewDelegate() = default;
  virtual void alertControllerViewDidPerformAction(QavAlertControllerView& alertView,
                                                   const QavAlertActionRef& didPerformAction) = 0;
};

}  // namespace kindora
