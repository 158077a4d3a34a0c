// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

/// The z of what is not simply drawn in its turn.
namespace kindora::Depth {
Q_NAMESPACE
QML_ELEMENT

enum Value {
  // Parts of a view, whose subviews lie at 1, 2, 3 and so on.
  Shadow = -2,
  Ground = -1,
  Border = 1000000,
  FocusRing = 1000001,
  // A program's alerts, in its window, where Qt Quick Controls have popups at 1000001.
  AlertLayer = 1000002,
};
Q_ENUM_NS(Value)

}  // namespace kindora::Depth
