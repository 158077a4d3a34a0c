// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The operations of LuPhoneFormat that read the file. Offsets are 32-bit and wrap; whether they lie
// within the data is decided in 64 bits.
#include <algorithm>
#include <bit>
#include <utility>

#include "phoneformat/FileLayout.h"
#include "phoneformat/LuPhoneFormat.h"

namespace kindora {
namespace {

using namespace phonefile;

// Without the first optional part; an unclosed one takes the rest with it.
std::string withoutOptionalPart(std::string_view format) {
  const std::size_t open = format.find(kOptionalOpen);
  if (open == std::string_view::npos) return std::string(format);
  std::string result(format.substr(0, open));
  const std::size_t close = format.find(kOptionalClose);
  if (close != std::string_view::npos) {
    result += format.substr(close + kOptionalClose.size());
  }
  return result;
}

}  // namespace

std::uint32_t LuPhoneFormat::value32(std::uint32_t offset) const {
  if (std::uint64_t{offset} + 4 > data_.size()) return 0;
  std::uint32_t value = 0;
  for (std::uint32_t i = 4; i-- > 0;) value = value << 8 | byte(offset + i);
  return value;
}

std::uint32_t LuPhoneFormat::value16(std::uint32_t offset) const {
  if (std::uint64_t{offset} + 2 > data_.size()) return 0;
  return byte(offset) | std::uint32_t{byte(offset + 1)} << 8;
}

std::uint32_t LuPhoneFormat::value16BE(std::uint32_t offset) const {
  if (std::uint64_t{offset} + 2 > data_.size()) return 0;
  return std::uint32_t{byte(offset)} << 8 | byte(offset + 1);
}

std::uint8_t LuPhoneFormat::byte(std::uint32_t offset) const {
  return offset < data_.size() ? std::to_integer<std::uint8_t>(data_[offset]) : std::uint8_t{0};
}

std::string_view LuPhoneFormat::text(std::uint32_t offset, std::size_t most) const {
  if (offset >= data_.size()) return {};
  most = std::min(most, data_.size() - offset);
  const auto* const start = reinterpret_cast<const char*>(data_.data()) + offset;
  return {start, static_cast<std::size_t>(std::find(start, start + most, '\0') - start)};
}

void LuPhoneFormat::parseDataHeader() {
  const auto stored = std::bit_cast<std::int32_t>(value32(0));
  // An entry that the file does not hold would read as all zeros.
  const std::uint64_t room =
      data_.size() < kHeaderStart ? 0 : (data_.size() - kHeaderStart + kEntrySize - 1) / kEntrySize;
  const auto count =
      static_cast<std::uint32_t>(std::min(room, static_cast<std::uint64_t>(std::max(stored, 0))));
  const std::uint32_t blocks = kHeaderStart + kEntrySize * value32(0);
  countryCallingCode_.reserve(count);
  callingCodeOffsets_.reserve(count);
  callingCodeCountries_.reserve(count);
  for (std::uint32_t i = 0; i < count; ++i) {
    const std::uint32_t entry = kHeaderStart + kEntrySize * i;
    const std::string callingCode(text(entry + kEntryCallingCode, kEntryTextSize));
    const std::string country(text(entry + kEntryCountry, kEntryTextSize));
    if (country == defaultCountry_) defaultCallingCode_ = callingCode;
    countryCallingCode_.insert_or_assign(country, callingCode);
    callingCodeOffsets_.insert_or_assign(callingCode, blocks + value32(entry + kEntryOffset));
    callingCodeCountries_[callingCode].insert(country);
    noteLength(callingCode);
  }
  if (defaultCallingCode_) defaultInfo_ = callingCodeInfo(*defaultCallingCode_);
}

const CallingCodeInfo* LuPhoneFormat::callingCodeInfo(std::string_view callingCode) {
  const auto known = callingCodeData_.find(callingCode);
  if (known != callingCodeData_.end()) return &known->second;
  const auto offset = callingCodeOffsets_.find(callingCode);
  if (offset == callingCodeOffsets_.end()) return nullptr;
  CallingCodeInfo& info = callingCodeData_[offset->first];
  info.callingCode = callingCode;
  info.countries = callingCodeCountries_.find(callingCode)->second;
  readBlock(offset->second, info);
  return &info;
}

std::uint32_t LuPhoneFormat::readTexts(std::uint32_t offset,
                                       std::vector<std::string>& texts) const {
  for (;;) {
    const std::string_view next = text(offset, data_.size());
    offset += static_cast<std::uint32_t>(next.size()) + 1;
    if (next.empty()) return offset;
    texts.emplace_back(next);
  }
}

PhoneRule LuPhoneFormat::readRule(std::uint32_t offset, std::uint32_t pool) const {
  const std::uint32_t format = pool + value16(offset + kRuleFormat);
  return {.minVal = std::bit_cast<std::int32_t>(value32(offset + kRuleMinVal)),
          .maxVal = std::bit_cast<std::int32_t>(value32(offset + kRuleMaxVal)),
          .byte8 = byte(offset + kRuleByte8),
          .maxLen = byte(offset + kRuleMaxLen),
          .otherFlag = byte(offset + kRuleOtherFlag),
          .prefixLen = byte(offset + kRulePrefixLen),
          .flag12 = byte(offset + kRuleFlag12),
          .flag13 = byte(offset + kRuleFlag13),
          .format = withoutOptionalPart(text(format, data_.size()))};
}

void LuPhoneFormat::readBlock(std::uint32_t block, CallingCodeInfo& info) const {
  const std::uint32_t area = block + value16(block + kBlockRuleSets);
  const std::uint32_t pool = area + value16(block + kBlockRuleSetsSize);
  const std::uint32_t setCount = value16(block + kBlockSetCount);
  const std::uint32_t access = readTexts(block + kBlockTexts, info.trunkPrefixes);
  static_cast<void>(readTexts(access, info.intlPrefixes));

  std::uint32_t offset = area;
  info.ruleSets.reserve(std::min<std::size_t>(setCount, data_.size() / kSetRules));
  for (std::uint32_t i = 0; i < setCount && offset < data_.size(); ++i) {
    RuleSet& set = info.ruleSets.emplace_back();
    set.matchLen = static_cast<std::int32_t>(value16(offset + kSetMatchLen));
    const std::uint32_t ruleCount = value16(offset + kSetRuleCount);
    offset += kSetRules;
    // No more than the file can hold, whatever it says.
    set.rules.reserve(std::min<std::size_t>(ruleCount, data_.size() / kRuleSize));
    for (std::uint32_t j = 0; j < ruleCount && offset < data_.size(); ++j) {
      set.append(readRule(offset, pool));
      offset += kRuleSize;
    }
  }
  info.buildIndex();
}

}  // namespace kindora
