// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace kindora {

/// A font asked for by its full name; the toolkit puts a like one in its place where it is missing.
struct UIFont {
  std::string name;
  double pointSize = 17;  ///< in points of the view, before the user's own scale of texts
  bool scales = true;     ///< whether it grows by that scale

  /// The font of the toolkit's own parts.
  [[nodiscard]] static UIFont systemFontOfSize(double size) { return {"System", size}; }
  [[nodiscard]] static UIFont boldSystemFontOfSize(double size) { return {"System-Bold", size}; }
  /// The font in that very size, whatever the user's scale.
  [[nodiscard]] UIFont unscaled() const { return {name, pointSize, false}; }
  friend bool operator==(const UIFont&, const UIFont&) = default;
};

}  // namespace kindora
