// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QMetaType>
#include <memory>

#include "toolkit/view/UIView.h"

namespace kindora {

/// A view's record on its way through QML, which passes it on and never looks inside.
struct ViewHandle {
  Q_GADGET
  QML_VALUE_TYPE(viewHandle)

 public:
  UIViewRef view;
  friend bool operator==(const ViewHandle&, const ViewHandle&) = default;
};

}  // namespace kindora
