// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/PhotoFolderController.h"

#include <utility>
#include <vector>

#include "platform/services/Services.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {

namespace {

// What lies above the user's home.
constexpr const char* kTopPath = "/";

QString titleOf(const std::string& path) {
  if (path.empty()) return PhotoFolderController::tr("Home");
  if (path == kTopPath) return PhotoFolderController::tr("All Folders");
  return QString::fromStdString(path.substr(path.rfind('/') + 1));
}

}  // namespace

PhotoFolderController::PhotoFolderController(std::string path) : path_(std::move(path)) {
  setTitle(titleOf(path_));
}

QUrl PhotoFolderController::page() const { return pageUrl(u"Kindora.Photos", u"PhotoFolderPage"); }

void PhotoFolderController::viewDidLoad() {
  PhotoPageController::viewDidLoad();
  services().photos->listFolder(path_, [this, alive = weak_from_this()](
                                           const std::vector<PhotoFile>& files) {
    const auto self = alive.lock();
    if (!self) return;
    std::vector<PhotoFile> shown = files;
    if (path_.empty()) {
      shown.insert(shown.begin(),
                   {.path = kTopPath, .name = titleOf(kTopPath).toStdString(), .isFolder = true});
    }
    files_.setFiles(shown);
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
