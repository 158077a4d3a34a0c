// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A JSON value as read by the JsonReader service.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kindora {

struct Json;
struct JsonMember;
using JsonArray = std::vector<Json>;
using JsonObject = std::vector<JsonMember>;  ///< each name once

struct Json {
  /// Null at first. An initialiser would need JsonMember to be complete here.
  std::variant<std::nullptr_t, bool, double, std::string, JsonArray, JsonObject> value;

  /// The value when it is of kind T, else null.
  template <typename T>
  [[nodiscard]] const T* as() const {
    return std::get_if<T>(&value);
  }
};

struct JsonMember {
  std::string name;
  Json value;
};

/// The value of that name, null when the object has none.
[[nodiscard]] inline const Json* memberOf(const JsonObject& object, std::string_view name) {
  const auto member = std::ranges::find(object, name, &JsonMember::name);
  return member == object.end() ? nullptr : &member->value;
}

class JsonReader {
 public:
  virtual ~JsonReader() = default;
  /// The value that the UTF-8 text holds, or none when it is not JSON.
  [[nodiscard]] virtual std::optional<Json> read(std::string_view text) const = 0;
};

}  // namespace kindora
