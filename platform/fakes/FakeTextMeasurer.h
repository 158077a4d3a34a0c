// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/TextMeasurer.h"

namespace kindora {

/// Every character is half as wide as the font's size; a line is 1.25 times as high, with its
/// baseline at the font's size. Lines break at blanks where they can, else anywhere. The font of a
/// part counts for the whole text, so tests give attributed texts one font.
class FakeTextMeasurer final : public TextMeasurer {
 public:
  [[nodiscard]] TextExtent measure(const NSAttributedString& text, const UIFont& font,
                                   double maximumWidth, int maximumLines) const override;
  [[nodiscard]] double lineHeight(const UIFont& font) const override;
};

}  // namespace kindora
