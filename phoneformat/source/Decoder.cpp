// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/source/Decoder.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <map>
#include <string_view>
#include <utility>

#include "phoneformat/FileLayout.h"
#include "phoneformat/source/Digits.h"
#include "phoneformat/source/Pattern.h"

namespace kindora {
namespace {

using namespace phonefile;

// Unlike the formatter's reads, which pass over damage in silence, these stop at it.
struct Damage {
  std::string reason;
};

class Decoder final {
 public:
  Decoder(const PhoneFormatData& data, const std::string& name) : data_(data), name_(name) {}

  SourceText run() && {
    guarded(name_, [&] { readHeader(); });
    for (const auto& [code, where] : entries_) {
      const Entry& entry = where;
      SourceBlock& block = result_.blocks.emplace_back();
      block.place = name_ + ": calling code " + code;
      block.plan.callingCode = code;
      block.plan.countries = entry.countries;
      guarded(block.place, [&] { readBlock(entry.offset, block); });
    }
    return std::move(result_);
  }

 private:
  struct Entry {
    std::uint64_t offset = 0;
    std::set<std::string> countries;
  };

  template <typename Read>
  void guarded(const std::string& place, Read read) {
    try {
      read();
    } catch (const Damage& damage) {
      result_.problems.push_back({place, damage.reason});
    }
  }

  void problem(const std::string& place, const std::string& reason) {
    result_.problems.push_back({place, reason});
  }

  [[nodiscard]] std::uint32_t value(std::uint64_t offset, std::uint64_t size,
                                    const char* what) const {
    if (offset + size > data_.size()) {
      throw Damage{std::string(what) + " at " + std::to_string(offset) +
                   " lies outside the file of " + std::to_string(data_.size()) + " bytes"};
    }
    std::uint32_t result = 0;
    for (std::uint64_t i = size; i-- > 0;) {
      result = result << 8 | std::to_integer<std::uint32_t>(data_[offset + i]);
    }
    return result;
  }

  // The text from the offset to a zero before `end`.
  [[nodiscard]] std::string text(std::uint64_t offset, std::uint64_t end, const char* what) const {
    std::string result;
    for (; offset < std::min<std::uint64_t>(end, data_.size()); ++offset) {
      const char ch = std::to_integer<char>(data_[offset]);
      if (ch == '\0') return result;
      result += ch;
    }
    throw Damage{std::string(what) + " \"" + result + "\" does not end"};
  }

  void readHeader() {
    const std::uint64_t count = value(0, 4, "the number of countries");
    const std::uint64_t blocks = kHeaderStart + kEntrySize * count;
    if (count > INT32_MAX || blocks > data_.size()) {
      throw Damage{std::to_string(count) + " countries do not fit into the file of " +
                   std::to_string(data_.size()) + " bytes"};
    }
    std::map<std::string, std::string> codeOf;
    for (std::uint64_t i = 0; i < count; ++i) {
      const std::string place = name_ + ": country " + std::to_string(i + 1);
      guarded(place, [&] {
        const std::uint64_t entry = kHeaderStart + kEntrySize * i;
        const std::string code =
            text(entry + kEntryCallingCode, entry + kEntryCountry, "the calling code");
        const std::string country =
            text(entry + kEntryCountry, entry + kEntryOffset, "the country code");
        const std::uint64_t offset = blocks + value(entry + kEntryOffset, 4, "an offset");
        checkCodes(code, country, place);
        if (!codeOf.emplace(country, code).second) {
          problem(place, "country code \"" + country + "\" came before");
        }
        const auto [known, isNew] = entries_.try_emplace(code, Entry{offset, {}});
        if (!isNew && known->second.offset != offset) {
          problem(place, "calling code " + code + " has a block at " +
                             std::to_string(known->second.offset) + " and one at " +
                             std::to_string(offset));
        }
        known->second.countries.insert(country);
      });
    }
  }

  void checkCodes(const std::string& code, const std::string& country, const std::string& place) {
    if (!isAllDigits(code)) {
      problem(place, "\"" + code + "\" is no calling code");
    }
    if (country.size() != 2 ||
        !std::ranges::all_of(country, [](char ch) { return ch >= 'a' && ch <= 'z'; })) {
      problem(place, "\"" + country + "\" is no lower-case country code of two letters");
    }
  }

  // Reads texts up to an empty one and returns where the next thing stands.
  std::uint64_t readTexts(std::uint64_t offset, std::uint64_t end,
                          std::vector<std::string>& texts) const {
    for (;;) {
      const std::string next = text(offset, end, "the prefix");
      offset += next.size() + 1;
      if (next.empty()) return offset;
      texts.push_back(next);
    }
  }

  void readBlock(std::uint64_t offset, SourceBlock& block) {
    const std::uint64_t area = offset + value(offset + kBlockRuleSets, 2, "a block");
    const std::uint64_t pool = area + value(offset + kBlockRuleSetsSize, 2, "a block");
    const std::uint32_t setCount = value(offset + kBlockSetCount, 2, "a block");
    const std::uint64_t access = readTexts(offset + kBlockTexts, area, block.plan.trunkPrefixes);
    readTexts(access, area, block.plan.intlPrefixes);
    for (const auto* prefixes : {&block.plan.trunkPrefixes, &block.plan.intlPrefixes}) {
      for (const std::string& prefix : *prefixes) {
        if (!isAllDigits(prefix)) {
          problem(block.place, "\"" + prefix + "\" is no prefix of digits");
        }
      }
    }

    std::uint64_t at = area;
    for (std::uint32_t i = 0; i < setCount; ++i) {
      const std::string place = block.place + ", rule set " + std::to_string(i + 1);
      RuleSet& set = block.plan.ruleSets.emplace_back();
      set.matchLen = static_cast<std::int32_t>(value(at + kSetMatchLen, 2, "a rule set"));
      const std::uint32_t ruleCount = value(at + kSetRuleCount, 2, "a rule set");
      at += kSetRules;
      for (std::uint32_t j = 0; j < ruleCount; ++j) {
        set.append(readRule(at, pool, place + ", rule " + std::to_string(j + 1)));
        at += kRuleSize;
      }
    }
    if (at != pool) {
      problem(block.place, "the rule sets take " + std::to_string(at - area) + " bytes, not " +
                               std::to_string(pool - area));
    }
  }

  PhoneRule readRule(std::uint64_t at, std::uint64_t pool, const std::string& place) {
    const auto byte = [&](std::uint64_t field) {
      return static_cast<std::int32_t>(value(at + field, 1, "a rule"));
    };
    const auto word = [&](std::uint64_t field) {
      return std::bit_cast<std::int32_t>(value(at + field, 4, "a rule"));
    };
    PhoneRule rule{.minVal = word(kRuleMinVal),
                   .maxVal = word(kRuleMaxVal),
                   .byte8 = byte(kRuleByte8),
                   .maxLen = byte(kRuleMaxLen),
                   .otherFlag = byte(kRuleOtherFlag),
                   .prefixLen = byte(kRulePrefixLen),
                   .flag12 = byte(kRuleFlag12),
                   .flag13 = byte(kRuleFlag13),
                   .format = {}};
    guarded(place, [&] {
      rule.format = text(pool + value(at + kRuleFormat, 2, "a rule"), data_.size(), "the pattern");
      if (const auto mistake = mistakeIn(rule)) problem(place, *mistake);
    });
    return rule;
  }

  const PhoneFormatData& data_;
  const std::string& name_;
  SourceText result_;
  std::map<std::string, Entry> entries_;
};

}  // namespace

SourceText decodePhoneFormats(const PhoneFormatData& data, const std::string& name) {
  return Decoder(data, name).run();
}

}  // namespace kindora
