// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/LuPhoneFormat.h"

#include <algorithm>
#include <array>
#include <climits>
#include <iterator>
#include <span>
#include <utility>

#include "phoneformat/PhoneFormatEnvironment.h"

namespace kindora {
namespace {

constexpr std::string_view kResourceName = "PhoneFormats";
constexpr std::string_view kResourceType = "dat";
constexpr std::string_view kPhoneChars = "0123456789+*#";
constexpr std::size_t kCountryCapacity = 255;
constexpr std::size_t kRecordCapacity = 10;
constexpr std::size_t kLongestCallingCode = 3;

bool isPhoneChar(char ch) {
  static constexpr auto kTable = [] {
    std::array<bool, UCHAR_MAX + 1> table{};
    for (const char phoneChar : kPhoneChars) table[static_cast<unsigned char>(phoneChar)] = true;
    return table;
  }();
  return kTable[static_cast<unsigned char>(ch)];
}

// The phone characters of a text, without an allocation where they are as few as they should be.
class Stripped final {
 public:
  explicit Stripped(std::string_view text) {
    if (text.size() > small_.size()) {
      large_ = LuPhoneFormat::strip(text);
      return;
    }
    size_ = static_cast<std::size_t>(std::ranges::copy_if(text, small_.begin(), isPhoneChar).out -
                                     small_.begin());
  }

  [[nodiscard]] std::string_view view() const {
    return large_.empty() ? std::string_view(small_.data(), size_) : large_;
  }

 private:
  std::array<char, 64> small_;
  std::size_t size_ = 0;
  std::string large_;
};

// The value of the first three digits, or of as many as there are with zeros behind; none if one of
// them is none.
std::optional<std::size_t> threeDigits(std::string_view text) {
  std::size_t value = 0;
  for (std::size_t i = 0; i < kLongestCallingCode; ++i) {
    const auto digit = i < text.size() ? static_cast<unsigned>(text[i] - '0') : 0U;
    if (digit > 9) return std::nullopt;
    value = 10 * value + digit;
  }
  return value;
}

std::string lowercase(std::string_view code) {
  std::string result(code);
  for (char& ch : result) {
    if (ch >= 'A' && ch <= 'Z') ch = static_cast<char>(ch - 'A' + 'a');
  }
  return result;
}

}  // namespace

LuPhoneFormat& LuPhoneFormat::instance() {
  // Never destroyed, so that it can be used while the program ends.
  static LuPhoneFormat& shared = *init().release();
  return shared;
}

std::string LuPhoneFormat::strip(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  std::ranges::copy_if(text, std::back_inserter(result), isPhoneChar);
  return result;
}

std::unique_ptr<LuPhoneFormat> LuPhoneFormat::init() {
  return initWithDefaultCountry(std::nullopt);
}

std::unique_ptr<LuPhoneFormat> LuPhoneFormat::initWithDefaultCountry(
    std::optional<std::string_view> countryCode) {
  PhoneFormatEnvironment& environment = phoneFormatEnvironment();
  const bool given = countryCode && !countryCode->empty();
  return std::make_unique<LuPhoneFormat>(
      environment.data(kResourceName, kResourceType),
      given ? std::string(*countryCode) : lowercase(environment.countryCode()));
}

LuPhoneFormat::LuPhoneFormat(PhoneFormatData data, std::string_view defaultCountry)
    : data_(std::move(data)), defaultCountry_(defaultCountry) {
  callingCodeOffsets_.reserve(kCountryCapacity);
  callingCodeCountries_.reserve(kCountryCapacity);
  callingCodeData_.reserve(kRecordCapacity);
  countryCallingCode_.reserve(kCountryCapacity);
  parseDataHeader();
}

std::size_t LuPhoneFormat::ShortTextHash::operator()(std::string_view text) const {
  std::size_t hash = text.size();
  for (const char ch : text) hash = hash << 8 ^ hash >> 24 ^ static_cast<unsigned char>(ch);
  return hash;
}

std::optional<std::string> LuPhoneFormat::defaultCallingCode() const {
  return callingCodeForCountryCode(defaultCountry_);
}

std::optional<std::string> LuPhoneFormat::callingCodeForCountryCode(
    std::string_view countryCode) const {
  const auto found = countryCallingCode_.find(lowercase(countryCode));
  if (found == countryCallingCode_.end()) return std::nullopt;
  return found->second;
}

std::optional<std::set<std::string>> LuPhoneFormat::countriesForCallingCode(
    std::string_view callingCode) const {
  if (callingCode.starts_with('+')) callingCode.remove_prefix(1);
  const auto found = callingCodeCountries_.find(callingCode);
  if (found == callingCodeCountries_.end()) return std::nullopt;
  return found->second;
}

void LuPhoneFormat::noteLength(std::string_view callingCode) {
  const std::optional<std::size_t> first = threeDigits(callingCode);
  if (!first || callingCode.empty() || callingCode.size() > kLongestCallingCode) return;
  std::size_t starts = 1;
  for (std::size_t i = callingCode.size(); i < kLongestCallingCode; ++i) starts *= 10;
  for (std::uint8_t& length : std::span(codeLengths_).subspan(*first, starts)) {
    if (length == 0 || length > callingCode.size()) {
      length = static_cast<std::uint8_t>(callingCode.size());
    }
  }
}

const CallingCodeInfo* LuPhoneFormat::findCallingCodeInfo(std::string_view digits) {
  // What has no shorter code once has none ever; most numbers have the code of the one before.
  if (lastFound_ && digits.starts_with(lastFound_->callingCode)) return lastFound_;
  if (const std::optional<std::size_t> start = threeDigits(digits)) {
    const std::size_t length = codeLengths_[*start];
    if (length == 0 || length > digits.size()) return nullptr;
    return lastFound_ = callingCodeInfo(digits.substr(0, length));
  }
  const std::size_t longest = std::min(digits.size(), kLongestCallingCode);
  for (std::size_t length = 1; length <= longest; ++length) {
    if (const CallingCodeInfo* info = callingCodeInfo(digits.substr(0, length))) {
      return lastFound_ = info;
    }
  }
  return nullptr;
}

std::string LuPhoneFormat::format(std::string_view text) {
  const Stripped stripped(text);
  const std::string_view number = stripped.view();
  if (number.starts_with('+')) {
    const std::string_view digits = number.substr(1);
    const CallingCodeInfo* const info = findCallingCodeInfo(digits);
    if (!info) return std::string(text);
    return info->format(digits, number.substr(0, 1));
  }
  const CallingCodeInfo* const home = defaultInfo_;
  if (!home) return std::string(text);
  const std::optional<std::string_view> accessCode = home->matchingAccessCode(number);
  if (!accessCode) return home->format(number);
  const std::string_view digits = number.substr(accessCode->size());
  if (digits.empty()) return std::string(*accessCode);
  const CallingCodeInfo* const abroad = findCallingCodeInfo(digits);
  std::string front(*accessCode);
  front += ' ';
  return abroad ? abroad->format(digits, front) : front.append(digits);
}

bool LuPhoneFormat::isPhoneNumberValid(std::string_view text) {
  const Stripped stripped(text);
  std::string_view number = stripped.view();
  if (number.starts_with('+')) {
    number.remove_prefix(1);
    const CallingCodeInfo* const info = findCallingCodeInfo(number);
    return info && info->isValidPhoneNumber(number);
  }
  const CallingCodeInfo* const home = defaultInfo_;
  if (!home) return false;
  const std::optional<std::string_view> accessCode = home->matchingAccessCode(number);
  if (!accessCode) return home->isValidPhoneNumber(number);
  number.remove_prefix(accessCode->size());
  const CallingCodeInfo* const abroad = findCallingCodeInfo(number);
  return abroad && abroad->isValidPhoneNumber(number);
}

}  // namespace kindora
