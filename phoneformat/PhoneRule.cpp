// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/PhoneRule.h"

#include <algorithm>
#include <cstddef>

namespace kindora {
namespace {

constexpr std::size_t kUsualLength = 20;

class Expansion {
 public:
  Expansion(std::string_view digits, PrefixText intlPrefix, PrefixText trunkPrefix)
      : digits_(digits), intlPrefix_(intlPrefix), trunkPrefix_(trunkPrefix) {}

  std::string operator()(std::string_view pattern) {
    result_.reserve(std::max(kUsualLength, pattern.size() + prefixLength() + 1));
    char before = '\0';
    for (const char ch : pattern) {
      append(ch, before);
      before = ch;
    }
    if (intlPrefix_ && !placedIntl_) {
      result_.insert(0, 1, ' ').insert(0, *intlPrefix_);
    } else if (trunkPrefix_ && !placedTrunk_) {
      result_.insert(0, *trunkPrefix_);
    }
    return std::move(result_);
  }

 private:
  [[nodiscard]] std::size_t prefixLength() const {
    return intlPrefix_.value_or("").size() + trunkPrefix_.value_or("").size();
  }
  [[nodiscard]] bool digitsRemain() const { return next_ < digits_.size(); }

  void append(char ch, char before) {
    switch (ch) {
      case '#':
        if (digitsRemain()) {
          result_ += digits_[next_++];
        } else if (open_) {
          result_ += ' ';
        }
        return;
      case 'c':
        if (intlPrefix_) result_ += *intlPrefix_;
        placedIntl_ = true;
        return;
      case 'n':
        if (trunkPrefix_) result_ += *trunkPrefix_;
        placedTrunk_ = true;
        return;
      default:
        appendLiteral(ch, before);
    }
  }

  void appendLiteral(char ch, char before) {
    if (ch == '(' && digitsRemain()) open_ = true;
    const bool parted = (before == 'n' && !trunkPrefix_) || (before == 'c' && !intlPrefix_);
    if (ch == ' ' && parted) return;
    if (!digitsRemain() && !(ch == ')' && open_)) return;
    result_ += ch;
    if (ch == ')') open_ = false;
  }

  std::string_view digits_;
  PrefixText intlPrefix_;
  PrefixText trunkPrefix_;
  std::string result_;
  std::size_t next_ = 0;
  bool open_ = false;
  bool placedIntl_ = false;
  bool placedTrunk_ = false;
};

}  // namespace

std::string PhoneRule::formatIntlPrefixTrunkPrefix(std::string_view digits, PrefixText intlPrefix,
                                                   PrefixText trunkPrefix) const {
  return Expansion(digits, intlPrefix, trunkPrefix)(format);
}

std::string PhoneRule::description() const {
  const auto field = [](const char* name, std::int32_t value) {
    return name + std::to_string(value);
  };
  return "Rule: { " + field("minVal: ", minVal) + field(", maxVal: ", maxVal) +
         field(", byte8: ", byte8) + field(", maxLen: ", maxLen) + field(", nFlag: ", otherFlag) +
         field(", prefixLen: ", prefixLen) + field(", flag12: ", flag12) +
         field(", flag13: ", flag13) + ", format: " + format + " }";
}

}  // namespace kindora
