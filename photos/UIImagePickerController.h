// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The picker of one picture: from the camera, or from the user's pictures; with editing allowed the
// user cuts a square from it. It is a navigation stack of pages of its own.
#pragma once

#include <memory>

#include "platform/UIImage.h"
#include "toolkit/controllers/UINavigationController.h"

namespace kindora {

class UIImagePickerController;

enum class UIImagePickerControllerSourceType { photoLibrary, camera };

/// What the user picked; either may be absent.
struct UIImagePickerInfo {
  UIImageRef originalImage;
  UIImageRef editedImage;  ///< the square that the user cut from it
};

/// Hears how a picker ended, and dismisses it.
class UIImagePickerControllerDelegate {
 public:
  virtual ~UIImagePickerControllerDelegate() = default;
  virtual void imagePickerController(UIImagePickerController& picker,
                                     const UIImagePickerInfo& didFinishPickingMediaWithInfo) = 0;
  virtual void imagePickerControllerDidCancel(UIImagePickerController& picker) = 0;
};

/// Tells its delegate once, whatever the user does afterwards; dismisses itself when it has none.
class UIImagePickerController : public kindora::UINavigationController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("pickers are made by controllers")

 public:
  explicit UIImagePickerController(UIImagePickerControllerSourceType sourceType);

  [[nodiscard]] UIImagePickerControllerSourceType sourceType() const { return sourceType_; }
  [[nodiscard]] bool allowsEditing() const { return allowsEditing_; }
  void setAllowsEditing(bool allows) { allowsEditing_ = allows; }
  void setDelegate(std::weak_ptr<UIImagePickerControllerDelegate> delegate);
  [[nodiscard]] std::shared_ptr<UIImagePickerControllerDelegate> delegate() const;

  // --- For its pages ---

  /// Goes on with a picture: to the square, or to the end.
  void use(const UIImageRef& image);
  /// Shows the user's pictures, above what is shown now.
  void showLibrary();
  void finish(const UIImagePickerInfo& info);
  void cancel();
  [[nodiscard]] bool hasEnded() const { return ended_; }

 private:
  UIImagePickerControllerSourceType sourceType_;
  bool allowsEditing_ = false;
  std::weak_ptr<UIImagePickerControllerDelegate> delegate_;
  bool ended_ = false;
};

}  // namespace kindora
