// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeJson.h"

#include <utility>

namespace kindora {

std::optional<Json> FakeJson::read(std::string_view text) const {
  const auto known = values_.find(text);
  return known == values_.end() ? std::nullopt : std::optional(known->second);
}

void FakeJson::setValue(std::string_view text, Json value) {
  values_.insert_or_assign(std::string(text), std::move(value));
}

}  // namespace kindora
