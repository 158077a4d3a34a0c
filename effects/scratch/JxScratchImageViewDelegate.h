// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

class JxScratchImageView;

/// Hears how much of a scratch-off cover is gone.
class JxScratchImageViewDelegate {
 public:
  virtual ~JxScratchImageViewDelegate() = default;
  /// Called inside the touch handling, at most once a touch set, when the fraction has changed. The
  /// progress lies in [0, 1], or is infinite when the view has no cover.
  virtual void jxScratchImageView(JxScratchImageView& view, double didChangeMaskingProgress) = 0;
};

}  // namespace kindora
