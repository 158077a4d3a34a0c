// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMatrix4x4>
#include <QQuickItem>
#include <memory>
#include <optional>

#include "platform/CATransform3D.h"

namespace kindora {

/// Applies to an item, about its centre, the matrix that a keyframe animation gives.
class KeyframeTransform final {
 public:
  KeyframeTransform();
  ~KeyframeTransform();
  KeyframeTransform(const KeyframeTransform&) = delete;
  KeyframeTransform& operator=(const KeyframeTransform&) = delete;

  /// None leaves the item as it is without.
  void set(const std::optional<CATransform3D>& transform, QQuickItem& item);

 private:
  class Matrix;
  std::unique_ptr<Matrix> matrix_;  // made at first need
};

}  // namespace kindora
