// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Any text as a phone number of countries whose plans have little in common.
#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "fuzz/Fuzz.h"
#include "phoneformat/LuPhoneFormat.h"

using kindora::LuPhoneFormat;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::array formatters = [] {
    const auto file = kindora::readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE).value();
    const auto of = [&](std::string_view country) {
      return std::make_unique<LuPhoneFormat>(file, country);
    };
    return std::array{of("us"), of("gb"), of("ar"), of("mx"), of("de"), of("xx")};
  }();
  const std::string_view text = kindora::fuzzText(data, size);
  const std::string stripped = LuPhoneFormat::strip(text);
  for (const auto& formatter : formatters) {
    const std::string shown = formatter->format(text);
    kindora::require(LuPhoneFormat::strip(shown) == stripped, "no digit is lost, added or moved");
    kindora::require(formatter->format(shown) == shown, "what is formatted stays as it is");
    kindora::require(formatter->isPhoneNumberValid(shown) == formatter->isPhoneNumberValid(text),
                     "the verdict depends on the digits alone");
  }
  return 0;
}
