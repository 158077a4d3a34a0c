// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/PhotoFolderController.h"

#include <utility>

#include "platform/services/Services.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {

PhotoFolderController::PhotoFolderController(std::string path) : path_(std::move(path)) {
  setTitle(path_.empty() ? tr("Home") : QString::fromStdString(path_.substr(path_.rfind('/') + 1)));
}

QUrl PhotoFolderController::page() const { return pageUrl(u"Kindora.Photos", u"PhotoFolderPage"); }

void PhotoFolderController::viewDidLoad() {
  PhotoPageController::viewDidLoad();
  services().photos->listFolder(
      path_, [this, alive = weak_from_this()](const std::vector<PhotoFile>& files) {
        const auto self = alive.lock();
        if (!self) return;
        files_.setFiles(files);
        listed_ = true;
        emit listedChanged();
      });
}

void PhotoFolderController::choose(int row) {
  const PhotoFile& file = files_.file(row);
  if (file.isFolder) {
    picker().pushViewController(makeViewController<PhotoFolderController>(file.path), true);
  } else {
    openPhoto(file.path);
  }
}

}  // namespace kindora
