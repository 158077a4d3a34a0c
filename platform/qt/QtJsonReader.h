// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/Json.h"

namespace kindora {

/// JSON on Qt Core: any value at the top, objects with a key twice keep the last, and what is
/// nested more than about a thousand times counts as no JSON.
class QtJsonReader final : public JsonReader {
 public:
  [[nodiscard]] std::optional<Json> read(std::string_view text) const override;
};

}  // namespace kindora
