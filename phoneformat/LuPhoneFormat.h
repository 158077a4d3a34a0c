// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Lays phone numbers out as they are typed and tells whether they are whole.
//
//     LuPhoneFormat formatter(*readPhoneFormatFile("PhoneFormats.dat"), "gb");
//     formatter.format("02071234567");                // "020 7123 4567"
//     formatter.isPhoneNumberValid("+442071234567");  // true
//
// No operation reports an error, whatever the text or the data: what cannot be formatted comes back
// as it is, and is not valid. Text is UTF-8, but any bytes will do. One thread at a time.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>

#include "phoneformat/CallingCodeInfo.h"
#include "phoneformat/PhoneFormatData.h"

namespace kindora {

class LuPhoneFormat final {
 public:
  /// The formatter of the process, made by init at the first call, from whichever thread.
  [[nodiscard]] static LuPhoneFormat& instance();
  /// Keeps the ASCII digits, "+", "*" and "#" in their order and drops all else.
  [[nodiscard]] static std::string strip(std::string_view text);

  /// A formatter for the country in which the environment says the user is.
  [[nodiscard]] static std::unique_ptr<LuPhoneFormat> init();
  /// A formatter with the environment's data. The country code is used as it is given, so that "US"
  /// does not find the data's "us"; none or an empty one means the environment's, in lower case.
  [[nodiscard]] static std::unique_ptr<LuPhoneFormat> initWithDefaultCountry(
      std::optional<std::string_view> countryCode);

  /// A formatter with data of its own and the country code as it is given.
  LuPhoneFormat(PhoneFormatData data, std::string_view defaultCountry);
  LuPhoneFormat(const LuPhoneFormat&) = delete;
  LuPhoneFormat& operator=(const LuPhoneFormat&) = delete;

  /// The calling code of the default country in any case; what formatting goes by is the code found
  /// for it exactly as given.
  [[nodiscard]] std::optional<std::string> defaultCallingCode() const;
  /// The calling code of a country in any case.
  [[nodiscard]] std::optional<std::string> callingCodeForCountryCode(
      std::string_view countryCode) const;
  /// The countries of a calling code, with or without one "+" in front.
  [[nodiscard]] std::optional<std::set<std::string>> countriesForCallingCode(
      std::string_view callingCode) const;
  /// The plan of the shortest calling code with which the digits begin; null when there is none.
  [[nodiscard]] const CallingCodeInfo* findCallingCodeInfo(std::string_view digits);

  /// The text as a phone number, as far as it has been typed.
  [[nodiscard]] std::string format(std::string_view text);
  /// Whether the text is a whole phone number.
  [[nodiscard]] bool isPhoneNumberValid(std::string_view text);

  /// The value at the offset, least significant byte first, or most significant first for BE; 0
  /// when it does not lie wholly within the data.
  [[nodiscard]] std::uint32_t value32(std::uint32_t offset) const;
  [[nodiscard]] std::uint32_t value16(std::uint32_t offset) const;
  [[nodiscard]] std::uint32_t value16BE(std::uint32_t offset) const;
  /// Reads the table of countries. Done by the constructor.
  void parseDataHeader();
  /// The plan of a calling code, read at the first call and kept; null when there is none. It stays
  /// where it is as long as the formatter lives.
  const CallingCodeInfo* callingCodeInfo(std::string_view callingCode);

 private:
  // Calling codes and country codes are so short that a whole one is its own hash.
  struct ShortTextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const;
  };
  template <typename Value>
  using ShortTextMap = std::unordered_map<std::string, Value, ShortTextHash, std::equal_to<>>;

  // The text from the offset to its end, at most most bytes long.
  [[nodiscard]] std::string_view text(std::uint32_t offset, std::size_t most) const;
  [[nodiscard]] std::uint8_t byte(std::uint32_t offset) const;
  // Reads strings up to an empty one; returns the offset behind it.
  [[nodiscard]] std::uint32_t readTexts(std::uint32_t offset,
                                        std::vector<std::string>& texts) const;
  [[nodiscard]] PhoneRule readRule(std::uint32_t offset, std::uint32_t pool) const;
  void noteLength(std::string_view callingCode);
  void readBlock(std::uint32_t block, CallingCodeInfo& info) const;

  PhoneFormatData data_;
  std::string defaultCountry_;
  std::optional<std::string> defaultCallingCode_;
  ShortTextMap<std::uint32_t> callingCodeOffsets_;
  ShortTextMap<std::set<std::string>> callingCodeCountries_;
  ShortTextMap<CallingCodeInfo> callingCodeData_;
  ShortTextMap<std::string> countryCallingCode_;

  // By three digits: the length of the shortest calling code with which they begin, 0 for none.
  std::array<std::uint8_t, 1000> codeLengths_{};
  const CallingCodeInfo* defaultInfo_ = nullptr;  // of defaultCallingCode_
  const CallingCodeInfo* lastFound_ = nullptr;    // by findCallingCodeInfo
};

}  // namespace kindora
