// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/PhotoLibraryController.h"

#include "photos/PhotoFolderController.h"
#include "platform/services/Services.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {

QUrl PhotoLibraryController::page() const {
  return pageUrl(u"Kindora.Photos", u"PhotoLibraryPage");
}

void PhotoLibraryController::viewDidLoad() {
  PhotoPageController::viewDidLoad();
  setTitle(tr("Photos"));
  services().photos->choosePhoto([this, alive = weak_from_this()](const PhotoChoice& choice) {
    if (const auto self = alive.lock()) chosenElsewhere(choice);
  });
}

void PhotoLibraryController::viewWillDisappear(bool animated) {
  if (stage_ == Stage::chooser) services().photos->abandonChoice();
  PhotoPageController::viewWillDisappear(animated);
}

void PhotoLibraryController::chosenElsewhere(const PhotoChoice& choice) {
  if (choice.available) {
    setStage(Stage::chosen);
    if (choice.path.empty()) {
      picker().cancel();
    } else {
      openPhoto(choice.path, guarded([this] { picker().cancel(); }));
    }
    return;
  }
  setStage(Stage::listing);
  services().photos->listPhotos(
      [this, alive = weak_from_this()](const std::vector<PhotoFile>& files) {
        const auto self = alive.lock();
        if (!self) return;
        photos_.setFiles(files);
        setStage(Stage::grid);
      });
}

void PhotoLibraryController::setStage(Stage stage) {
  stage_ = stage;
  emit stageChanged();
}

void PhotoLibraryController::choose(int row) { openPhoto(photos_.file(row).path); }

void PhotoLibraryController::browse() {
  picker().pushViewController(makeViewController<PhotoFolderController>(std::string()), true);
}

}  // namespace kindora
