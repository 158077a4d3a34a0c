// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/PictureFormat.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kindora {
namespace {

constexpr std::array<std::uint8_t, 8> kPng{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::array<std::uint8_t, 3> kJpeg{0xFF, 0xD8, 0xFF};

// JPEG markers, the byte behind 0xFF.
constexpr std::uint8_t kStuffed = 0x00;
constexpr std::uint8_t kTemporary = 0x01;
constexpr std::uint8_t kFirstRestart = 0xD0;
constexpr std::uint8_t kLastRestart = 0xD7;
constexpr std::uint8_t kStartOfImage = 0xD8;
constexpr std::uint8_t kEndOfImage = 0xD9;
constexpr std::uint8_t kStartOfScan = 0xDA;

template <std::size_t Size>
bool beginsWith(std::span<const std::byte> bytes, const std::array<std::uint8_t, Size>& magic) {
  return bytes.size() >= Size && std::equal(magic.begin(), magic.end(), bytes.begin(),
                                            [](std::uint8_t expected, std::byte found) {
                                              return static_cast<std::byte>(expected) == found;
                                            });
}

// Markers that no length follows.
bool standsAlone(std::uint8_t marker) {
  return marker == kStuffed || marker == kTemporary || marker == kStartOfImage ||
         (marker >= kFirstRestart && marker <= kLastRestart);
}

// A PNG file is a row of chunks: length, name, data, checksum.
bool isCompletePng(std::span<const std::byte> file) {
  constexpr std::size_t kOverhead = 12;  // bytes of a chunk beside its data
  constexpr std::array<std::uint8_t, 4> kLastName{'I', 'E', 'N', 'D'};
  std::size_t at = kPng.size();
  while (at + kOverhead <= file.size()) {
    std::size_t length = 0;
    for (const std::byte part : file.subspan(at, 4)) {
      length = length << 8U | std::to_integer<std::size_t>(part);
    }
    if (length > file.size() - at - kOverhead) return false;
    if (beginsWith(file.subspan(at + 4), kLastName)) return true;
    at += length + kOverhead;
  }
  return false;
}

bool isCompleteJpeg(std::span<const std::byte> file) {
  const auto byte = [file](std::size_t at) { return std::to_integer<std::uint8_t>(file[at]); };
  bool scanned = false;  // coded data, through which markers are looked for
  std::size_t at = 0;
  while (at + 1 < file.size()) {
    if (byte(at) != 0xFF || byte(at + 1) == 0xFF) {
      ++at;
      continue;
    }
    const std::uint8_t marker = byte(at + 1);
    at += 2;
    if (marker == kEndOfImage) return scanned;
    if (standsAlone(marker)) continue;
    if (at + 1 >= file.size()) return false;
    at += static_cast<std::size_t>(byte(at)) << 8U | byte(at + 1);
    if (marker == kStartOfScan) scanned = true;
  }
  return false;
}

}  // namespace

std::optional<PictureFormat> pictureFormat(std::span<const std::byte> beginning) {
  if (beginsWith(beginning, kPng)) return PictureFormat::png;
  if (beginsWith(beginning, kJpeg)) return PictureFormat::jpeg;
  return std::nullopt;
}

bool isCompletePicture(PictureFormat format, std::span<const std::byte> file) {
  return format == PictureFormat::png ? isCompletePng(file) : isCompleteJpeg(file);
}

}  // namespace kindora
