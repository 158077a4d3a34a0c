// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "phoneformat/LuPhoneFormat.h"

namespace kindora {

/// A country for which there are phone formats.
struct PhoneCountry {
  std::string code;         ///< of the country, in the formats' lower case
  std::string name;         ///< in English; the code in capitals where there is none
  std::string callingCode;  ///< digits
  friend bool operator==(const PhoneCountry&, const PhoneCountry&) = default;
};

/// All countries of the formats, by name.
[[nodiscard]] std::vector<PhoneCountry> phoneCountries(const LuPhoneFormat& phoneFormat);

/// The countries whose name contains the text whatever the case of its letters, or whose calling
/// code begins with it, with or without a "+"; all of them for an empty text.
[[nodiscard]] std::vector<PhoneCountry> countriesMatching(
    const std::vector<PhoneCountry>& countries, std::string_view text);

/// A number as it is dialled from abroad, laid out; empty when it is not whole. The formatter's
/// default country says how the number is meant.
[[nodiscard]] std::string internationalPhoneNumber(LuPhoneFormat& phoneFormat,
                                                   std::string_view number);

}  // namespace kindora
