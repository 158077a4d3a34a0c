// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Any bytes as a data file, first for the formatter, then for what tells mistakes.
#include <array>
#include <string>
#include <string_view>

#include "fuzz/Fuzz.h"
#include "phoneformat/LuPhoneFormat.h"
#include "phoneformat/source/Decoder.h"

namespace {

// The country of the first entry of a file made of whole ones, so that its plan is the default.
constexpr std::size_t kFirstCountry = 8;
constexpr std::size_t kCountrySize = 2;

constexpr std::array<std::string_view, 20> kNumbers{
    "",        "+",         "0",           "1",          "4155552671",
    "+1",      "+14155",    "14155552671", "5552671",    "02071234567",
    "+442071", "+44",       "01144207",    "0044207123", "+999999999999999",
    "*67415",  "#31#01512", "+4",          "000",        "99999999999999999999999999999999"};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = kindora::fuzzText(data, size);
  const auto* bytes = reinterpret_cast<const std::byte*>(data);
  const kindora::PhoneFormatData file(bytes, bytes + size);
  const std::string country(size > kFirstCountry ? text.substr(kFirstCountry, kCountrySize) : "us");

  kindora::LuPhoneFormat formatter(file, country);
  for (const std::string_view number : kNumbers) {
    const std::string once = formatter.format(number);
    const bool valid = formatter.isPhoneNumberValid(number);
    kindora::require(formatter.format(number) == once, "formatting keeps nothing in mind");
    kindora::require(formatter.isPhoneNumberValid(number) == valid, "nor does the verdict");
  }
  static_cast<void>(kindora::writeSource(kindora::decodePhoneFormats(file, "input").blocks));
  return 0;
}
