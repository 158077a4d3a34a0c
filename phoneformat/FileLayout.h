// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Where things stand in a phone format file; docs/phoneformat.md draws the tables. All in bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kindora::phonefile {

// The header: a 32-bit count of entries, then the entries.
inline constexpr std::uint32_t kHeaderStart = 4;
inline constexpr std::uint32_t kEntrySize = 12;
inline constexpr std::uint32_t kEntryCallingCode = 0;
inline constexpr std::uint32_t kEntryCountry = 4;
inline constexpr std::uint32_t kEntryOffset = 8;
inline constexpr std::size_t kEntryTextSize = 4;

// A calling code's block: offset and size of the rule sets, their count, then the prefixes.
inline constexpr std::uint32_t kBlockRuleSets = 0;
inline constexpr std::uint32_t kBlockRuleSetsSize = 4;
inline constexpr std::uint32_t kBlockSetCount = 8;
inline constexpr std::uint32_t kBlockTexts = 12;

inline constexpr std::uint32_t kSetMatchLen = 0;
inline constexpr std::uint32_t kSetRuleCount = 2;
inline constexpr std::uint32_t kSetRules = 4;

inline constexpr std::uint32_t kRuleSize = 16;
inline constexpr std::uint32_t kRuleMinVal = 0;
inline constexpr std::uint32_t kRuleMaxVal = 4;
inline constexpr std::uint32_t kRuleByte8 = 8;
inline constexpr std::uint32_t kRuleMaxLen = 9;
inline constexpr std::uint32_t kRuleOtherFlag = 10;
inline constexpr std::uint32_t kRulePrefixLen = 11;
inline constexpr std::uint32_t kRuleFlag12 = 12;
inline constexpr std::uint32_t kRuleFlag13 = 13;
inline constexpr std::uint32_t kRuleFormat = 14;

// What stands between these in a pattern is left out by the reader.
inline constexpr std::string_view kOptionalOpen = "[[";
inline constexpr std::string_view kOptionalClose = "]]";

}  // namespace kindora::phonefile
