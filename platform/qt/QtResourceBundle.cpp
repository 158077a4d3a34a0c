// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtResourceBundle.h"

#include <QFile>
#include <QSizeF>
#include <QStringList>
#include <QXmlStreamReader>
#include <memory>
#include <utility>

#include "platform/qt/SvgImageSource.h"

namespace kindora {
namespace {

constexpr double kScale = 2;

// The size of the view box of the SVG file; empty when there is no such file or it has no view box.
QSizeF viewBoxSize(const QString& fileName) {
  QFile file(fileName);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader xml(&file);
  if (!xml.readNextStartElement() || xml.name() != QLatin1String("svg")) return {};
  QString box = xml.attributes().value(QLatin1String("viewBox")).toString();
  const QStringList numbers = box.replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
  if (numbers.size() != 4) return {};
  return {numbers[2].toDouble(), numbers[3].toDouble()};
}

UIImageRef loaded(const QString& fileName) {
  const QSizeF size = viewBoxSize(fileName);
  if (size.isEmpty()) return nullptr;
  return UIImage::imageWithSource(std::make_shared<SvgImageSource>(fileName),
                                  {size.width() / kScale, size.height() / kScale}, kScale);
}

}  // namespace

QtResourceBundle::QtResourceBundle(QString folder) : folder_(std::move(folder)) {}

UIImageRef QtResourceBundle::imageNamed(std::string_view name) {
  const auto known = images_.find(name);
  if (known != images_.end()) return known->second;
  const QString base = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
  UIImageRef image = loaded(folder_ + u'/' + base + QLatin1String(".svg"));
  // Only what exists is kept, so that asking for many missing names costs no memory.
  if (image) images_.emplace(name, image);
  return image;
}

}  // namespace kindora
