// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "photos/UIImagePickerController.h"

namespace kindora {

/// A page of the image picker. It has a Cancel button in the bar, and going back from the first
/// page cancels too.
class PhotoPageController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("pages are made by the image picker")
  Q_PROPERTY(bool opening READ isOpening NOTIFY openingChanged)

 public:
  /// Pixels on the longer side of the pictures that are picked, at most.
  static constexpr int kLongestSide = 1200;

  /// A picture is being read.
  [[nodiscard]] bool isOpening() const { return opening_; }
  void viewDidLoad() override;
  bool goBack() override;

 signals:
  void openingChanged();

 protected:
  /// The picker that the page belongs to; stops when it belongs to none.
  [[nodiscard]] UIImagePickerController& picker() const;
  /// Reads a picture and goes on with it, one at a time. An alert tells of one that cannot be read;
  /// when that has gone, unreadable runs.
  void openPhoto(const std::string& path, Completion unreadable = {});

 private:
  void photoRead(const UIImageRef& image, const Completion& unreadable);
  void setOpening(bool opening);

  bool opening_ = false;
};

}  // namespace kindora
