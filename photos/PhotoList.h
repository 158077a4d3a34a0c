// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QAbstractListModel>
#include <memory>
#include <vector>

#include "platform/services/PhotoService.h"

namespace kindora {

/// Pictures and folders as a list model. A picture's thumbnail is read when its row comes into
/// sight and let go when the row leaves it.
class PhotoList : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("owned by pages of the image picker")
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  /// Pixels on a thumbnail's longer side, at most.
  static constexpr int kThumbnailSide = 360;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  [[nodiscard]] int count() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] const PhotoFile& file(int row) const;
  void setFiles(const std::vector<PhotoFile>& files);

  /// The row came into sight, or left it.
  Q_INVOKABLE void show(int row);
  Q_INVOKABLE void hide(int row);

 signals:
  void countChanged();

 private:
  struct Row {
    PhotoFile file;
    bool shown = false;
    UIImageRef thumbnail;
  };
  void thumbnailRead(int row, const std::string& path, const UIImageRef& thumbnail);

  std::vector<Row> rows_;
  std::shared_ptr<PhotoList*> alive_ = std::make_shared<PhotoList*>(this);
};

}  // namespace kindora
