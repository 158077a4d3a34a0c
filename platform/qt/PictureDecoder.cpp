// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/PictureDecoder.h"

#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <cstring>
#include <span>
#include <vector>

namespace kindora {
namespace {

// Megabytes for one decoded picture of the most pixels, at 8 bytes each (16 bits a channel).
constexpr int kAllocationLimit =
    static_cast<int>(kMaximumPicturePixels * 8 / (qint64{1024} * 1024));
constexpr qint64 kMagicLength = 8;

std::span<const std::byte> bytesOf(const uchar* data, qint64 size) {
  return std::as_bytes(std::span(data, static_cast<std::size_t>(size)));
}

bool isWhole(PictureFormat format, QFile& file) {
  const uchar* mapped = file.map(0, file.size());
  if (mapped == nullptr) return false;
  return isCompletePicture(format, bytesOf(mapped, file.size()));
}

// The size with the longer side at most that, the shape kept, no side below 1.
QSize shrunk(QSize size, int longestSide) {
  if (std::max(size.width(), size.height()) <= longestSide) return size;
  return size.scaled(longestSide, longestSide, Qt::KeepAspectRatio).expandedTo({1, 1});
}

Raster toRaster(const QImage& image) {
  const auto width = static_cast<std::size_t>(image.width());
  const auto height = static_cast<std::size_t>(image.height());
  std::vector<Rgba8> pixels(width * height);
  for (int y = 0; y < image.height(); ++y) {
    std::memcpy(pixels.data() + static_cast<std::size_t>(y) * width, image.constScanLine(y),
                width * sizeof(Rgba8));
  }
  return {width, height, pixels};
}

}  // namespace

std::optional<PictureFormat> pictureFormatOfFile(const QString& path) {
  QFile file(path);
  // Not a pipe or a device, which would be waited for.
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray beginning = file.read(kMagicLength);
  return pictureFormat(
      bytesOf(reinterpret_cast<const uchar*>(beginning.constData()), beginning.size()));
}

std::optional<Raster> decodePicture(const QString& path, int longestSide) {
  const std::optional<PictureFormat> format = pictureFormatOfFile(path);
  QFile file(path);
  if (!format || !file.open(QIODevice::ReadOnly) || !isWhole(*format, file)) return std::nullopt;

  QImageReader reader(&file, format == PictureFormat::jpeg ? "jpeg" : "png");
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty() || qint64{size.width()} * size.height() > kMaximumPicturePixels) {
    return std::nullopt;
  }
  // The JPEG decoder shrinks cheaply while it decodes; what it is asked for is made twice as large
  // as needed, so that the last step is a smooth one.
  if (format == PictureFormat::jpeg) {
    const QSize coarse = shrunk(size, 2 * longestSide);
    if (coarse != size) reader.setScaledSize(coarse);
  }
  static const bool limited = (QImageReader::setAllocationLimit(kAllocationLimit), true);
  static_cast<void>(limited);
  QImage image = reader.read();
  if (image.isNull()) return std::nullopt;
  const QSize wanted = shrunk(image.size(), longestSide);
  if (wanted != image.size()) {
    image = image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  if (image.colorSpace().isValid() && image.colorSpace() != QColorSpace(QColorSpace::SRgb)) {
    image.convertToColorSpace(QColorSpace(QColorSpace::SRgb));
  }
  return toRaster(image.convertToFormat(QImage::Format_RGBA8888_Premultiplied));
}

}  // namespace kindora
