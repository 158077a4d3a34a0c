// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

#include "phoneformat/FileLayout.h"
#include "phoneformat/source/Digits.h"
#include "phoneformat/source/Keywords.h"
#include "phoneformat/source/Pattern.h"
#include "phoneformat/source/SourceText.h"

namespace kindora {
namespace {

using namespace phonesource;

constexpr std::string_view kBlanks = " \t\r";
constexpr std::int32_t kMostMatchLen = 0xFFFF;

struct Word {
  std::string text;
  bool quoted = false;
};

// A line that cannot be read leaves through here and goes no further than parseSource.
struct BadLine {
  std::string reason;
};

// The words of a line; a quoted one may hold blanks, and a quote or backslash behind a backslash.
std::vector<Word> words(std::string_view line) {
  std::vector<Word> result;
  std::size_t i = 0;
  while ((i = line.find_first_not_of(kBlanks, i)) != std::string_view::npos && line[i] != '#') {
    Word word;
    if (line[i] == '"') {
      word.quoted = true;
      for (++i; i < line.size() && line[i] != '"'; ++i) {
        if (line[i] == '\\') ++i;
        if (i < line.size()) word.text += line[i];
      }
      if (i++ >= line.size()) throw BadLine{"the pattern does not end"};
    } else {
      const std::size_t end = std::min(line.find_first_of(kBlanks, i), line.size());
      word.text = line.substr(i, end - i);
      i = end;
    }
    result.push_back(std::move(word));
  }
  return result;
}

template <typename Number>
Number number(std::string_view text, Number most) {
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() ||
      value > static_cast<std::uint64_t>(most)) {
    throw BadLine{"\"" + std::string(text) + "\" is no number from 0 to " + std::to_string(most)};
  }
  return static_cast<Number>(value);
}

std::int32_t bound(std::string_view text) {
  return std::bit_cast<std::int32_t>(number<std::uint32_t>(text, UINT32_MAX));
}

void readField(std::string_view text, PhoneRule& rule) {
  const std::size_t equals = text.find('=');
  const auto field = std::ranges::find(kFields, text.substr(0, equals), &Field::name);
  if (equals == std::string_view::npos || field == kFields.end()) {
    throw BadLine{"\"" + std::string(text) + "\" is no field of a rule"};
  }
  rule.*field->member = number<std::int32_t>(text.substr(equals + 1), UINT8_MAX);
}

PhoneRule readRule(const std::vector<Word>& line) {
  if (line.size() < 3 || !line[2].quoted) {
    throw BadLine{"a rule is a range, a prefix and a pattern in quotes"};
  }
  PhoneRule rule;
  const std::string_view range = line[0].text;
  const std::size_t dash = range.find('-');
  rule.minVal = bound(range.substr(0, dash));
  rule.maxVal = dash == std::string_view::npos ? rule.minVal : bound(range.substr(dash + 1));
  const auto prefix = std::ranges::find(kPrefixes, line[1].text);
  if (prefix == kPrefixes.end()) {
    throw BadLine{"\"" + line[1].text + "\" is none of any, trunk, intl and both"};
  }
  rule.flag12 = static_cast<std::int32_t>(prefix - kPrefixes.begin());
  rule.format = line[2].text;
  if (rule.format.find('\0') != std::string::npos) throw BadLine{"a pattern holds no zero byte"};
  rule.maxLen = digitCount(rule.format);
  std::for_each(line.begin() + 3, line.end(),
                [&](const Word& word) { readField(word.text, rule); });
  if (const auto mistake = mistakeIn(rule)) throw BadLine{*mistake};
  return rule;
}

class Parser final {
 public:
  explicit Parser(const std::string& name) : name_(name) {}

  void readLine(std::string_view line, std::size_t lineNumber) {
    const std::string place = name_ + ":" + std::to_string(lineNumber);
    try {
      const std::vector<Word> split = words(line);
      if (!split.empty()) read(split, place);
    } catch (const BadLine& bad) {
      result_.problems.push_back({place, bad.reason});
    }
  }

  SourceText result() && { return std::move(result_); }

 private:
  void read(const std::vector<Word>& line, const std::string& place) {
    const std::string& keyword = line.front().text;
    if (keyword == kCode) return startBlock(line, place);
    if (result_.blocks.empty()) throw BadLine{"the file begins with a calling code"};
    CallingCodeInfo& plan = result_.blocks.back().plan;
    if (keyword == kCountries) {
      forRest(line, [&](const std::string& text) { addCountry(text, plan); });
    } else if (keyword == kTrunk) {
      forRest(line, [&](const std::string& text) { addPrefix(text, plan.trunkPrefixes); });
    } else if (keyword == kAccess) {
      forRest(line, [&](const std::string& text) { addPrefix(text, plan.intlPrefixes); });
    } else if (keyword == kSet) {
      if (line.size() != 2) throw BadLine{"a set has one number of leading digits"};
      plan.ruleSets.emplace_back().matchLen = number(line[1].text, kMostMatchLen);
    } else {
      if (plan.ruleSets.empty()) throw BadLine{"\"" + keyword + "\" is no keyword"};
      plan.ruleSets.back().append(readRule(line));
    }
  }

  void startBlock(const std::vector<Word>& line, const std::string& place) {
    if (line.size() != 2) throw BadLine{"a block has one calling code"};
    const std::string& code = line[1].text;
    result_.blocks.push_back({.plan = {}, .place = place});
    result_.blocks.back().plan.callingCode = code;
    if (code.size() >= phonefile::kEntryTextSize || !isAllDigits(code)) {
      throw BadLine{"\"" + code + "\" is no calling code of at most three digits"};
    }
  }

  void addCountry(const std::string& country, CallingCodeInfo& plan) {
    const bool good = country.size() == 2 &&
                      std::ranges::all_of(country, [](char ch) { return ch >= 'a' && ch <= 'z'; });
    if (!good) throw BadLine{"\"" + country + "\" is no lower-case country code of two letters"};
    const auto [known, isNew] = codes_.emplace(country, plan.callingCode);
    if (!isNew) {
      throw BadLine{"\"" + country + "\" has the calling code " + known->second + " already"};
    }
    plan.countries.insert(country);
  }

  static void addPrefix(const std::string& prefix, std::vector<std::string>& prefixes) {
    if (!isAllDigits(prefix)) throw BadLine{"\"" + prefix + "\" is no prefix of digits"};
    prefixes.push_back(prefix);
  }

  template <typename Take>
  static void forRest(const std::vector<Word>& line, Take take) {
    std::for_each(line.begin() + 1, line.end(), [&](const Word& word) { take(word.text); });
  }

  const std::string& name_;
  SourceText result_;
  std::map<std::string, std::string, std::less<>> codes_;
};

}  // namespace

SourceText parseSource(std::string_view text, const std::string& name) {
  Parser parser(name);
  for (std::size_t lineNumber = 1; !text.empty(); ++lineNumber) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    parser.readLine(text.substr(0, end), lineNumber);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return std::move(parser).result();
}

}  // namespace kindora
