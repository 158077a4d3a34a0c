// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/TextService.h"

namespace kindora {

/// Text operations for ASCII: comparison without regard to case, then by bytes; words end at
/// blanks.
class FakeText final : public TextService {
 public:
  [[nodiscard]] int compare(std::string_view a, std::string_view b) const override;
  [[nodiscard]] bool isDecimalDigit(char32_t character) const override;
  [[nodiscard]] std::string caseFolded(std::string_view text) const override;
  [[nodiscard]] std::string capitalized(std::string_view text) const override;
};

}  // namespace kindora
