// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "platform/UIImage.h"

namespace kindora {

/// The resources that ship with the app.
class ResourceBundle {
 public:
  virtual ~ResourceBundle() = default;
  /// The picture of that name; none, quietly, when there is no such resource. The same name gives
  /// the same object.
  [[nodiscard]] virtual UIImageRef imageNamed(std::string_view name) = 0;
};

}  // namespace kindora
