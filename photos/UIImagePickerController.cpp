// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/UIImagePickerController.h"

#include <utility>

#include "photos/CameraController.h"
#include "photos/PhotoCropController.h"
#include "photos/PhotoLibraryController.h"

namespace kindora {
namespace {

UIViewControllerRef firstPage(UIImagePickerControllerSourceType sourceType) {
  if (sourceType == UIImagePickerControllerSourceType::camera) {
    return makeViewController<CameraController>();
  }
  return makeViewController<PhotoLibraryController>();
}

}  // namespace

UIImagePickerController::UIImagePickerController(UIImagePickerControllerSourceType sourceType)
    : UINavigationController(firstPage(sourceType)), sourceType_(sourceType) {}

void UIImagePickerController::setDelegate(std::weak_ptr<UIImagePickerControllerDelegate> delegate) {
  delegate_ = std::move(delegate);
}

std::shared_ptr<UIImagePickerControllerDelegate> UIImagePickerController::delegate() const {
  return delegate_.lock();
}

void UIImagePickerController::use(const UIImageRef& image) {
  if (allowsEditing_) {
    pushViewController(makeViewController<PhotoCropController>(image), true);
  } else {
    finish({.originalImage = image});
  }
}

void UIImagePickerController::showLibrary() {
  pushViewController(makeViewController<PhotoLibraryController>(), true);
}

void UIImagePickerController::finish(const UIImagePickerInfo& info) {
  if (std::exchange(ended_, true)) return;
  if (const auto heard = delegate_.lock()) {
    heard->imagePickerController(*this, info);
  } else {
    dismissViewController(true);
  }
}

void UIImagePickerController::cancel() {
  if (std::exchange(ended_, true)) return;
  if (const auto heard = delegate_.lock()) {
    heard->imagePickerControllerDidCancel(*this);
  } else {
    dismissViewController(true);
  }
}

}  // namespace kindora
