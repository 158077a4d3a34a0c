// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QMetaType>

#include "platform/UIImage.h"

namespace kindora {

/// A picture on its way through QML, which passes it on and never looks inside.
struct ImageHandle {
  Q_GADGET
  QML_VALUE_TYPE(imageHandle)

 public:
  UIImageRef image;
  friend bool operator==(const ImageHandle&, const ImageHandle&) = default;
};

}  // namespace kindora
