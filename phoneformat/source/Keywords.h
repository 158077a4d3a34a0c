// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The words of the source text, for reading and writing it.
#pragma once

#include <array>
#include <string_view>

#include "phoneformat/PhoneRule.h"

namespace kindora::phonesource {

inline constexpr std::string_view kCode = "code";
inline constexpr std::string_view kCountries = "countries";
inline constexpr std::string_view kTrunk = "trunk";
inline constexpr std::string_view kAccess = "access";
inline constexpr std::string_view kSet = "set";

/// Which prefix a rule is meant for, by the value of its two flag bits.
inline constexpr std::array<std::string_view, 4> kPrefixes{"any", kTrunk, "intl", "both"};
inline constexpr std::int32_t kPrefixBits = PhoneRule::kTrunkBit | PhoneRule::kIntlBit;

struct Field {
  std::string_view name;
  std::int32_t PhoneRule::*member;
};
inline constexpr std::array<Field, 6> kFields{{
    {"byte8", &PhoneRule::byte8},
    {"maxLen", &PhoneRule::maxLen},
    {"otherFlag", &PhoneRule::otherFlag},
    {"prefixLen", &PhoneRule::prefixLen},
    {"flag12", &PhoneRule::flag12},
    {"flag13", &PhoneRule::flag13},
}};

}  // namespace kindora::phonesource
