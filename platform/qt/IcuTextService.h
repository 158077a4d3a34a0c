// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/TextService.h"

namespace kindora {

/// Text on ICU in its root locale, whatever the system's. Any thread. Malformed UTF-8 counts as
/// replacement characters.
class IcuTextService final : public TextService {
 public:
  [[nodiscard]] int compare(std::string_view a, std::string_view b) const override;
  [[nodiscard]] bool isDecimalDigit(char32_t character) const override;
  [[nodiscard]] std::string caseFolded(std::string_view text) const override;
  [[nodiscard]] std::string capitalized(std::string_view text) const override;
};

}  // namespace kindora
