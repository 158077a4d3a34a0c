// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Numbers of all countries, for both sides.
#pragma once

#include <string>
#include <vector>

#include "phoneformat/PhoneFormatData.h"

namespace kindora::phonebench {

struct Number {
  std::string national;       ///< digits as dialled in the country
  std::string international;  ///< "+" and digits
};

struct Country {
  std::string code;  ///< lower case
  std::vector<Number> numbers;
};

/// The peer's own example numbers: fixed line, mobile and toll-free where a country has them.
[[nodiscard]] const std::vector<Country>& countries();

/// The shipped data file.
[[nodiscard]] const PhoneFormatData& shippedData();

}  // namespace kindora::phonebench
