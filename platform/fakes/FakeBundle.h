// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/services/ResourceBundle.h"

namespace kindora {

/// A bundle that has a small picture of its own for every name, but for those told to be missing.
class FakeBundle final : public ResourceBundle {
 public:
  [[nodiscard]] UIImageRef imageNamed(std::string_view name) override;

  /// Gives this picture for the name; null makes the name missing.
  void setImage(std::string_view name, UIImageRef image);
  /// Makes the name missing.
  void setMissing(std::string_view name) { setImage(name, nullptr); }
  /// Makes every name missing that has not been asked for or set yet.
  void setOthersMissing() { inventsImages_ = false; }

 private:
  std::map<std::string, UIImageRef, std::less<>> images_;
  bool inventsImages_ = true;
};

}  // namespace kindora
