// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/source/Compiler.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "phoneformat/FileLayout.h"

namespace kindora {
namespace {

using namespace phonefile;

constexpr std::size_t kMost16 = 0xFFFF;

class Writer final {
 public:
  void put8(std::int64_t value) { data_.push_back(static_cast<std::byte>(value & 0xFF)); }
  void put16(std::size_t value) {
    put8(static_cast<std::int64_t>(value));
    put8(static_cast<std::int64_t>(value >> 8));
  }
  void put32(std::size_t value) {
    put16(value & kMost16);
    put16(value >> 16);
  }
  void putText(std::string_view text) {
    for (const char ch : text) put8(static_cast<unsigned char>(ch));
    put8(0);
  }
  void putPaddedText(std::string_view text) {
    for (std::size_t i = 0; i < kEntryTextSize; ++i) {
      put8(i < text.size() ? static_cast<unsigned char>(text[i]) : 0);
    }
  }
  void append(const PhoneFormatData& data) { data_.insert(data_.end(), data.begin(), data.end()); }

  [[nodiscard]] std::size_t size() const { return data_.size(); }
  PhoneFormatData take() && { return std::move(data_); }

 private:
  PhoneFormatData data_;
};

// The patterns of a block, one after the other. One that another ends with is no extra bytes.
class StringPool final {
 public:
  explicit StringPool(const CallingCodeInfo& plan) {
    std::vector<std::string_view> patterns;
    for (const RuleSet& set : plan.ruleSets) {
      for (const PhoneRule& rule : set.rules) patterns.push_back(rule.format);
    }
    std::ranges::sort(patterns, [](std::string_view a, std::string_view b) {
      return a.size() != b.size() ? a.size() > b.size() : a < b;
    });
    for (const std::string_view pattern : patterns) add(pattern);
  }

  [[nodiscard]] std::size_t offset(std::string_view pattern) const {
    return offsets_.find(pattern)->second;
  }
  [[nodiscard]] std::size_t size() const { return text_.size(); }
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  void add(std::string_view pattern) {
    if (offsets_.contains(pattern)) return;
    const std::size_t known = text_.find(std::string(pattern) + '\0');
    offsets_.emplace(pattern, known == std::string::npos ? text_.size() : known);
    if (known == std::string::npos) (text_ += pattern) += '\0';
  }

  std::string text_;
  std::map<std::string_view, std::size_t> offsets_;
};

void putRuleSets(const CallingCodeInfo& plan, const StringPool& pool, Writer& out) {
  for (const RuleSet& set : plan.ruleSets) {
    out.put16(static_cast<std::size_t>(set.matchLen));
    out.put16(set.rules.size());
    for (const PhoneRule& rule : set.rules) {
      out.put32(static_cast<std::uint32_t>(rule.minVal));
      out.put32(static_cast<std::uint32_t>(rule.maxVal));
      for (const std::int32_t value :
           {rule.byte8, rule.maxLen, rule.otherFlag, rule.prefixLen, rule.flag12, rule.flag13}) {
        out.put8(value);
      }
      out.put16(pool.offset(rule.format));
    }
  }
}

// The block of a plan; what does not fit is told in the problems.
PhoneFormatData block(const SourceBlock& source, Problems& problems) {
  const CallingCodeInfo& plan = source.plan;
  Writer texts;
  for (const auto* prefixes : {&plan.trunkPrefixes, &plan.intlPrefixes}) {
    for (const std::string& prefix : *prefixes) texts.putText(prefix);
    texts.putText("");
  }
  const StringPool pool(plan);
  Writer rules;
  putRuleSets(plan, pool, rules);

  const auto limit = [&](const char* what, std::size_t size) {
    if (size <= kMost16) return;
    problems.push_back({source.place, "calling code " + plan.callingCode + ": " + what + ", " +
                                          std::to_string(size) + ", is more than " +
                                          std::to_string(kMost16)});
  };
  limit("the size of the prefixes", kBlockTexts + texts.size());
  limit("the size of the rule sets", rules.size());
  limit("the number of rule sets", plan.ruleSets.size());
  limit("the size of the patterns", pool.size());

  Writer out;
  out.put32(kBlockTexts + texts.size());
  out.put32(rules.size());
  out.put32(plan.ruleSets.size());
  out.append(std::move(texts).take());
  out.append(std::move(rules).take());
  PhoneFormatData data = std::move(out).take();
  const auto bytes = std::as_bytes(std::span(pool.text()));
  data.insert(data.end(), bytes.begin(), bytes.end());
  return data;
}

}  // namespace

CompiledFile compilePhoneFormats(std::span<const SourceBlock> blocks) {
  CompiledFile result;
  std::map<std::string, std::pair<std::string, std::size_t>> entries;
  std::set<std::string> codes;
  Writer body;
  for (const SourceBlock& source : blocks) {
    const std::string& code = source.plan.callingCode;
    const auto problem = [&](const std::string& reason) {
      result.problems.push_back(
          {source.place, std::string("calling code ").append(code).append(reason)});
    };
    if (!codes.insert(code).second) problem(" came before");
    if (source.plan.countries.empty()) problem(" has no country");
    for (const std::string& country : source.plan.countries) {
      if (!entries.emplace(country, std::pair(code, body.size())).second) {
        problem(" names \"" + country + "\", which came before");
      }
    }
    body.append(block(source, result.problems));
  }
  Writer out;
  out.put32(entries.size());
  for (const auto& [country, place] : entries) {
    out.putPaddedText(place.first);
    out.putPaddedText(country);
    out.put32(place.second);
  }
  out.append(std::move(body).take());
  result.data = std::move(out).take();
  return result;
}

}  // namespace kindora
