// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A JSON value as read by the JsonReader service.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kindora {

struct Json;
using JsonArray = std::vector<Json>;
using JsonObject = std::map<std::string, Json, std::less<>>;

struct Json {
  std::variant<std::nullptr_t, bool, double, std::string, JsonArray, JsonObject> value = nullptr;

  /// The value when it is of kind T, else null.
  template <typename T>
  [[nodiscard]] const T* as() const {
    return std::get_if<T>(&value);
  }
};

class JsonReader {
 public:
  virtual ~JsonReader() = default;
  /// The value that the UTF-8 text holds, or none when it is not JSON.
  [[nodiscard]] virtual std::optional<Json> read(std::string_view text) const = 0;
};

}  // namespace kindora
