// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <span>

namespace kindora {

enum class PictureFormat { jpeg, png };

/// The format that a file's first bytes (8 are enough) tell; none for any other format, whatever
/// the file's name says.
[[nodiscard]] std::optional<PictureFormat> pictureFormat(std::span<const std::byte> beginning);

/// False for a file of that format which ends before its picture does. Decoders fill the rest of a
/// JPEG picture with grey and call it a success. What follows the picture's end does not matter.
[[nodiscard]] bool isCompletePicture(PictureFormat format, std::span<const std::byte> file);

}  // namespace kindora
