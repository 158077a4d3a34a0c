// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Erases discs and round-capped lines from a raster.
//
// A pixel keeps what the shape leaves uncovered of it: all four premultiplied channels are scaled
// by 1 - coverage. Positions are in pixels, y down, pixel (x, y) being the square from (x, y) to (x
// + 1, y + 1). What lies outside the raster is clipped; tiles that the shape misses stay shared.
// Nothing happens when a position is not finite or the radius not above 0.
#pragma once

#include "platform/Geometry.h"
#include "platform/Raster.h"

namespace kindora {

void eraseDisc(Raster& raster, CGPoint centre, double radius);

/// Erases all within radius of the straight line between two points.
void eraseSegment(Raster& raster, CGPoint from, CGPoint to, double radius);

}  // namespace kindora
