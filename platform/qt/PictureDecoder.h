// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <optional>

#include "platform/PictureFormat.h"
#include "platform/Raster.h"

namespace kindora {

/// The most pixels that a picture may have: 64 megapixels as cameras count them, in binary.
inline constexpr qint64 kMaximumPicturePixels = qint64{64} * 1024 * 1024;

/// The format of a plain file by its content; none for anything else.
[[nodiscard]] std::optional<PictureFormat> pictureFormatOfFile(const QString& path);

/// Decodes a JPEG or PNG file: turned upright, in sRGB, without metadata, shrunk to at most that
/// many pixels on its longer side and never enlarged. None when it is anything else, is damaged or
/// has too many pixels. Any thread.
[[nodiscard]] std::optional<Raster> decodePicture(const QString& path, int longestSide);

}  // namespace kindora
