// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>

#include "platform/Raster.h"

namespace kindora {

/// The raster's pixels as an image of Qt's.
[[nodiscard]] QImage toQImage(const Raster& raster);

}  // namespace kindora
