// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/CameraController.h"

#include "platform/services/Services.h"
#include "toolkit/controllers/PageUrl.h"

namespace kindora {

CameraController::CameraController() { setTitle(tr("Camera")); }

CameraController::~CameraController() = default;

QUrl CameraController::page() const { return pageUrl(u"Kindora.Photos", u"CameraPage"); }

void CameraController::viewDidLoad() {
  PhotoPageController::viewDidLoad();
  supported_ = services().photos->supportsCamera();
}

void CameraController::viewDidAppear(bool animated) {
  PhotoPageController::viewDidAppear(animated);
  setRunning(true);
}

void CameraController::viewWillDisappear(bool animated) {
  setRunning(false);
  PhotoPageController::viewWillDisappear(animated);
}

void CameraController::setRunning(bool running) {
  running_ = running;
  emit runningChanged();
}

QString CameraController::pictureFile() {
  folder_ = std::make_unique<QTemporaryDir>();
  return folder_->isValid() ? folder_->filePath(QStringLiteral("photo.jpg")) : QString();
}

void CameraController::photoTaken(const QString& file) { openPhoto(file.toStdString()); }

void CameraController::chooseExisting() { picker().showLibrary(); }

}  // namespace kindora
