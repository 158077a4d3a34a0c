// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/PhotoPageController.h"

#include <utility>

#include "platform/FatalError.h"
#include "platform/services/Services.h"
#include "toolkit/controllers/UIAlertController.h"

namespace kindora {

void PhotoPageController::viewDidLoad() {
  UIViewController::viewDidLoad();
  navigationItem()->setRightBarButtonItem(
      std::make_shared<UIBarButtonItem>(tr("Cancel"), QString(), [this] { picker().cancel(); }));
}

bool PhotoPageController::goBack() {
  picker().cancel();
  return true;
}

UIImagePickerController& PhotoPageController::picker() const {
  auto* const found = qobject_cast<UIImagePickerController*>(navigationController());
  if (found == nullptr) fatalError("a page of the image picker stands outside it");
  return *found;
}

void PhotoPageController::openPhoto(const std::string& path, Completion unreadable) {
  if (opening_ || picker().hasEnded()) return;
  setOpening(true);
  services().photos->readPhoto(path, kLongestSide,
                               [this, alive = weak_from_this(),
                                unreadable = std::move(unreadable)](const UIImageRef& image) {
                                 if (const auto self = alive.lock()) photoRead(image, unreadable);
                               });
}

void PhotoPageController::photoRead(const UIImageRef& image, const Completion& unreadable) {
  setOpening(false);
  // The user may have gone elsewhere meanwhile.
  if (navigationController() == nullptr || picker().hasEnded() ||
      picker().topViewController().get() != this) {
    return;
  }
  if (image) {
    picker().use(image);
    return;
  }
  const auto alert = makeViewController<UIAlertController>(
      tr("This picture cannot be opened.").toStdString(),
      tr("Please choose a JPEG or PNG picture of at most 64 megapixels.").toStdString(),
      UIAlertControllerStyle::alert);
  alert->addAction({tr("OK").toStdString(), UIAlertActionStyle::cancel, unreadable});
  presentViewController(alert, true);
}

void PhotoPageController::setOpening(bool opening) {
  if (opening_ == opening) return;
  opening_ = opening;
  emit openingChanged();
}

}  // namespace kindora
