// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/services/Json.h"

namespace kindora {

/// A reader that knows what the texts given to it hold and takes every other text for no JSON. Set
/// all texts before another thread reads.
class FakeJson final : public JsonReader {
 public:
  [[nodiscard]] std::optional<Json> read(std::string_view text) const override;

  /// From now on the text reads as the value.
  void setValue(std::string_view text, Json value);

 private:
  std::map<std::string, Json, std::less<>> values_;
};

}  // namespace kindora
