// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kindora {

/// A calling code or trunk prefix to show; none when the number was written without one.
using PrefixText = std::optional<std::string_view>;

/// How numbers of one length whose leading digits fall into one range are laid out.
///
/// The pattern's characters: "#" is the next digit, "c" the place of the calling code, "n" that of
/// the trunk prefix, all others stand for themselves.
struct PhoneRule {
  static constexpr std::int32_t kTrunkBit = 1;
  static constexpr std::int32_t kIntlBit = 2;

  /// Inclusive range of the leading digits' value.
  std::int32_t minVal = 0;
  std::int32_t maxVal = 0;
  std::int32_t byte8 = 0;
  /// Digits of a whole national number.
  std::int32_t maxLen = 0;
  std::int32_t otherFlag = 0;
  std::int32_t prefixLen = 0;
  /// kTrunkBit and kIntlBit; the other bits mean nothing.
  std::int32_t flag12 = 0;
  std::int32_t flag13 = 0;
  /// The pattern.
  std::string format;

  /// For numbers written with the calling code.
  [[nodiscard]] constexpr bool hasIntlPrefix() const { return ((flag12 >> 1) & 1) != 0; }
  /// For numbers written with a trunk prefix.
  [[nodiscard]] constexpr bool hasTrunkPrefix() const { return (flag12 & kTrunkBit) != 0; }

  /// The national digits laid out by the pattern as far as they go. Digits beyond the pattern's are
  /// left out. A prefix that has no place in the pattern goes in front: the calling code with a
  /// space, or else the trunk prefix without one. All that goes behind the front. Named by all
  /// keywords, since `format` is the field.
  [[nodiscard]] std::string formatIntlPrefixTrunkPrefix(std::string_view digits,
                                                        PrefixText intlPrefix,
                                                        PrefixText trunkPrefix,
                                                        std::string_view front = {}) const;
  /// All fields on one line.
  [[nodiscard]] std::string description() const;
};

}  // namespace kindora
