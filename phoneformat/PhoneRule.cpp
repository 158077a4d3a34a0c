// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/PhoneRule.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kindora {
namespace {

// Text that grows in place where it is as short as a phone number, so that only the result is
// allocated.
class Line final {
 public:
  explicit Line(std::size_t most) {
    if (most > small_.size()) {
      large_.resize(most);
      start_ = large_.data();
    }
  }
  Line(const Line&) = delete;
  Line& operator=(const Line&) = delete;

  Line& operator+=(char ch) {
    start_[size_++] = ch;
    return *this;
  }
  Line& operator+=(std::string_view text) {
    text.copy(start_ + size_, text.size());
    size_ += text.size();
    return *this;
  }
  [[nodiscard]] std::string text() const { return {start_, size_}; }

 private:
  std::array<char, 128> small_;
  std::string large_;
  char* start_ = small_.data();
  std::size_t size_ = 0;
};

class Expansion {
 public:
  Expansion(std::string_view pattern, std::string_view digits, PrefixText intlPrefix,
            PrefixText trunkPrefix, std::string_view front)
      : pattern_(pattern),
        digits_(digits),
        intlPrefix_(intlPrefix),
        trunkPrefix_(trunkPrefix),
        result_(front.size() + longest()) {
    result_ += front;
  }

  std::string operator()() {
    // What the pattern has no place for comes first, so that nothing is moved.
    if (intlPrefix_ && pattern_.find('c') == std::string_view::npos) {
      (result_ += *intlPrefix_) += ' ';
    } else if (trunkPrefix_ && pattern_.find('n') == std::string_view::npos) {
      result_ += *trunkPrefix_;
    }
    char before = '\0';
    for (const char ch : pattern_) {
      append(ch, before);
      before = ch;
    }
    return result_.text();
  }

 private:
  // More than the text can become: each place of the pattern and the one before it may hold a
  // prefix.
  [[nodiscard]] std::size_t longest() const {
    const std::size_t prefix =
        std::max(intlPrefix_.value_or("").size() + 1, trunkPrefix_.value_or("").size());
    return (pattern_.size() + 1) * prefix;
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
        return;
      case 'n':
        if (trunkPrefix_) result_ += *trunkPrefix_;
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

  std::string_view pattern_;
  std::string_view digits_;
  PrefixText intlPrefix_;
  PrefixText trunkPrefix_;
  Line result_;
  std::size_t next_ = 0;
  bool open_ = false;
};

}  // namespace

std::string PhoneRule::formatIntlPrefixTrunkPrefix(std::string_view digits, PrefixText intlPrefix,
                                                   PrefixText trunkPrefix,
                                                   std::string_view front) const {
  return Expansion(format, digits, intlPrefix, trunkPrefix, front)();
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
