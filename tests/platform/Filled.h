// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <vector>

#include "platform/Raster.h"

namespace kindora {

// A picture of one colour, in pixels.
inline Raster filled(std::size_t width, std::size_t height, Rgba8 color) {
  return {width, height, std::vector<Rgba8>(width * height, color)};
}

}  // namespace kindora
