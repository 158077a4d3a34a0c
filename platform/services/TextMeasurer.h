// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/Geometry.h"
#include "platform/NSAttributedString.h"
#include "platform/UIFont.h"

namespace kindora {

/// What a text takes on the screen, in points.
struct TextExtent {
  CGSize size;               ///< of all lines; the width is that of the longest
  double firstBaseline = 0;  ///< below the top
  double lastBaseline = 0;   ///< below the top
  friend constexpr bool operator==(const TextExtent&, const TextExtent&) = default;
};

/// Tells how large text is drawn. Main thread only.
class TextMeasurer {
 public:
  virtual ~TextMeasurer() = default;
  /// The text broken into lines of at most that width; a maximum that is not above 0 breaks only
  /// where the text says so. Parts without a font of their own have the given one. At most that
  /// many lines count when maximumLines is above 0. An empty text has no extent at all.
  [[nodiscard]] virtual TextExtent measure(const NSAttributedString& text, const UIFont& font,
                                           double maximumWidth, int maximumLines) const = 0;
  /// What one line in the font takes, whatever stands in it.
  [[nodiscard]] virtual double lineHeight(const UIFont& font) const = 0;
};

}  // namespace kindora
