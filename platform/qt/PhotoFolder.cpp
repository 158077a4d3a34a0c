// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/PhotoFolder.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/qt/PictureDecoder.h"

namespace kindora {
namespace {

PhotoFile described(const QFileInfo& info) {
  return {.path = info.filePath().toStdString(),
          .name = info.fileName().toStdString(),
          .isFolder = info.isDir()};
}

std::vector<PhotoFile> photosOf(QDirIterator files) {
  struct Dated {
    qint64 time = 0;
    PhotoFile photo;
  };
  std::vector<Dated> found;
  while (files.hasNext()) {
    files.next();
    const QFileInfo info = files.fileInfo();
    if (!pictureFormatOfFile(info.filePath())) continue;
    found.push_back({info.lastModified().toMSecsSinceEpoch(), described(info)});
  }
  std::ranges::sort(found, [](const Dated& a, const Dated& b) {
    return a.time != b.time ? a.time > b.time : a.photo.path < b.photo.path;
  });
  std::vector<PhotoFile> photos;
  photos.reserve(found.size());
  for (Dated& entry : found) photos.push_back(std::move(entry.photo));
  return photos;
}

}  // namespace

std::vector<PhotoFile> photosBelow(const QString& folder) {
  return photosOf(QDirIterator(folder, QDir::Files, QDirIterator::Subdirectories));
}

std::vector<PhotoFile> foldersAndPhotosIn(const QString& folder) {
  std::vector<PhotoFile> files;
  const auto folders =
      QDir(folder).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  for (const QFileInfo& info : folders) files.push_back(described(info));
  std::ranges::move(photosOf(QDirIterator(folder, QDir::Files)), std::back_inserter(files));
  return files;
}

}  // namespace kindora
