// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Phone format files written byte by byte, by other code than that which makes the shipped one.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "phoneformat/PhoneFormatData.h"

namespace kindora {

constexpr int kUnflagged = 0;
constexpr int kForTrunk = 1;
constexpr int kForIntl = 2;
constexpr int kForBoth = 3;

struct RawRule {
  std::uint32_t minVal = 0;
  std::uint32_t maxVal = 0;
  int maxLen = 0;
  int flag12 = 0;
  std::string format;
  int byte8 = 0;
  int otherFlag = 0;
  int prefixLen = 0;
  int flag13 = 0;
};

struct RawSet {
  int matchLen = 0;
  std::vector<RawRule> rules;
};

struct RawBlock {
  std::string code;
  std::vector<std::string> countries;
  std::vector<std::string> trunk;
  std::vector<std::string> access;
  std::vector<RawSet> sets;
};

/// Bytes one after the other, integers least significant byte first.
class Bytes {
 public:
  Bytes& u8(std::uint32_t value) {
    data.push_back(static_cast<std::byte>(value & 0xFF));
    return *this;
  }
  Bytes& u16(std::uint32_t value) { return u8(value).u8(value >> 8); }
  Bytes& u32(std::uint32_t value) { return u16(value).u16(value >> 16); }
  Bytes& text(std::string_view text) { return raw(text).u8(0); }
  Bytes& padded(std::string_view text, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) u8(i < text.size() ? text[i] : 0);
    return *this;
  }
  Bytes& raw(std::string_view text) {
    for (const char ch : text) u8(static_cast<unsigned char>(ch));
    return *this;
  }
  Bytes& append(const Bytes& other) {
    data.insert(data.end(), other.data.begin(), other.data.end());
    return *this;
  }
  [[nodiscard]] std::uint32_t size() const { return static_cast<std::uint32_t>(data.size()); }

  PhoneFormatData data;
};

/// The block; each rule has a pattern of its own in the pool.
inline Bytes rawBlock(const RawBlock& block) {
  Bytes texts;
  for (const auto* list : {&block.trunk, &block.access}) {
    for (const std::string& prefix : *list) texts.text(prefix);
    texts.u8(0);
  }
  Bytes sets;
  Bytes pool;
  for (const RawSet& set : block.sets) {
    sets.u16(static_cast<std::uint32_t>(set.matchLen));
    sets.u16(static_cast<std::uint32_t>(set.rules.size()));
    for (const RawRule& rule : set.rules) {
      sets.u32(rule.minVal).u32(rule.maxVal);
      for (const int field :
           {rule.byte8, rule.maxLen, rule.otherFlag, rule.prefixLen, rule.flag12, rule.flag13}) {
        sets.u8(static_cast<std::uint32_t>(field));
      }
      sets.u16(pool.size());
      pool.text(rule.format);
    }
  }
  Bytes result;
  // The halves that nobody reads are not zero.
  result.u16(12 + texts.size()).u16(0xAAAA).u16(sets.size()).u16(0xBBBB);
  result.u16(static_cast<std::uint32_t>(block.sets.size())).u16(0xCCCC);
  return result.append(texts).append(sets).append(pool);
}

/// The whole file: an entry for each country, in the order given.
inline PhoneFormatData handMadeFile(const std::vector<RawBlock>& blocks) {
  Bytes entries;
  Bytes body;
  std::uint32_t count = 0;
  for (const RawBlock& block : blocks) {
    for (const std::string& country : block.countries) {
      entries.padded(block.code, 4).padded(country, 4).u32(body.size());
      ++count;
    }
    body.append(rawBlock(block));
  }
  Bytes file;
  return file.u32(count).append(entries).append(body).data;
}

/// A few plans that between them show every way of matching.
inline std::vector<RawBlock> samplePlans() {
  return {
      {"1",
       {"us", "ca"},
       {"1"},
       {"011"},
       {{3,
         {{200, 999, 7, kUnflagged, "###-####"}, {200, 999, 10, kUnflagged, "(###) ###-####"}}}}},
      {"12", {"zz"}, {}, {}, {{1, {{0, 9, 3, kUnflagged, "#.#.#"}}}}},
      {"44",
       {"gb", "gg"},
       {"0"},
       {"00"},
       {{2,
         {{20, 29, 10, kForTrunk, "(n##) #### ####"}, {20, 29, 10, kForIntl, "c ## #### ####"}}}}},
      {"39", {"it"}, {"0"}, {"00"}, {{1, {{1, 9, 6, kUnflagged, "### ###"}}}}},
      // No rule for a calling code covers 3.
      {"81",
       {"jp"},
       {"0"},
       {"010"},
       {{1, {{3, 3, 9, kForTrunk, "# #### ####"}, {9, 9, 9, kForIntl, "## ### ####"}}}}},
      // The flagged set stands first, the unflagged one fits when no prefix is written.
      {"99",
       {"xx"},
       {},
       {},
       {{1, {{1, 1, 6, kForTrunk, "## ## ##"}}}, {1, {{1, 1, 6, kUnflagged, "# ## ###"}}}}},
  };
}

}  // namespace kindora
