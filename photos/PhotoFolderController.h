// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "photos/PhotoList.h"
#include "photos/PhotoPageController.h"

namespace kindora {

/// A folder's folders and pictures, for a picture that is not among the user's pictures. The user's
/// home also leads to all folders that there are.
class PhotoFolderController : public kindora::PhotoPageController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("pages are made by the image picker")
  Q_PROPERTY(kindora::PhotoList* files READ files CONSTANT)
  Q_PROPERTY(bool listed READ isListed NOTIFY listedChanged)

 public:
  /// An empty path is the user's home.
  explicit PhotoFolderController(std::string path);

  [[nodiscard]] PhotoList* files() { return &files_; }
  [[nodiscard]] bool isListed() const { return listed_; }

  void viewDidLoad() override;
  [[nodiscard]] QUrl page() const override;

  /// Opens a folder, or takes a picture.
  Q_INVOKABLE void choose(int row);

 signals:
  void listedChanged();

 private:
  std::string path_;
  PhotoList files_;
  bool listed_ = false;
};

}  // namespace kindora
