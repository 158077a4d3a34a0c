// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/PhotoList.h"

#include "platform/services/Services.h"
#include "toolkit/quick/ImageHandle.h"

namespace kindora {
namespace {

enum Role { kName = Qt::UserRole, kIsFolder, kThumbnail };

}  // namespace

int PhotoList::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

const PhotoFile& PhotoList::file(int row) const {
  return rows_.at(static_cast<std::size_t>(row)).file;
}

QVariant PhotoList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case kName:
      return QString::fromStdString(row.file.name);
    case kIsFolder:
      return row.file.isFolder;
    case kThumbnail:
      return QVariant::fromValue(ImageHandle{row.thumbnail});
    default:
      return {};
  }
}

QHash<int, QByteArray> PhotoList::roleNames() const {
  return {{kName, "name"}, {kIsFolder, "isFolder"}, {kThumbnail, "thumbnail"}};
}

void PhotoList::setFiles(const std::vector<PhotoFile>& files) {
  beginResetModel();
  rows_.clear();
  for (const PhotoFile& file : files) rows_.push_back({.file = file});
  endResetModel();
  emit countChanged();
}

void PhotoList::show(int row) {
  if (row < 0 || row >= count()) return;
  Row& shown = rows_[static_cast<std::size_t>(row)];
  if (shown.shown || shown.file.isFolder) return;
  shown.shown = true;
  const auto read = [list = std::weak_ptr(alive_), row,
                     path = shown.file.path](const UIImageRef& thumbnail) {
    if (const auto alive = list.lock()) (*alive)->thumbnailRead(row, path, thumbnail);
  };
  services().photos->readPhoto(shown.file.path, kThumbnailSide, read);
}

void PhotoList::hide(int row) {
  if (row < 0 || row >= count()) return;
  Row& hidden = rows_[static_cast<std::size_t>(row)];
  hidden.shown = false;
  hidden.thumbnail.reset();
}

void PhotoList::thumbnailRead(int row, const std::string& path, const UIImageRef& thumbnail) {
  // The list may have changed and the row may have left meanwhile.
  if (row >= count() || file(row).path != path) return;
  Row& read = rows_[static_cast<std::size_t>(row)];
  if (!read.shown) return;
  read.thumbnail = thumbnail;
  emit dataChanged(index(row), index(row), {kThumbnail});
}

}  // namespace kindora
