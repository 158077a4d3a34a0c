// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Challenge.h"
#include "photos/UIImagePickerController.h"
#include "toolkit/controllers/UIAlertController.h"
#include "toolkit/controllers/UIStaticTableViewController.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UITextField.h"

namespace kindora {

/// The user writes a challenge of their own: a title, a description and a photo. What is created
/// goes to the store as a badge and may be passed on at once.
class CreateChallengeTableViewController : public kindora::UIStaticTableViewController,
                                           public UITextFieldDelegate,
                                           public UIImagePickerControllerDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::weak_ptr<UITextField> challengeTitleField;
  std::weak_ptr<UITextField> challengeDescriptionField;
  std::weak_ptr<UIImageView> challengeImageView;
  /// The photo chosen so far.
  UIImageRef selectedImage;

  CreateChallengeTableViewController();

  /// The storyboard's work: builds the views and the bar, and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;
  void viewDidAppear(bool animated) override;
  /// Going back means to cancel.
  bool goBack() override;

  bool textFieldShouldReturn(UITextField& field) override;
  void textFieldDidChange(UITextField& field);
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;

  /// The photo row was pressed.
  void pickPhoto();
  /// Asks where the photo is to come from.
  void showPicker(const UIViewRef& anchor);
  void imagePickerController(UIImagePickerController& picker,
                             const UIImagePickerInfo& didFinishPickingMediaWithInfo) override;
  void imagePickerControllerDidCancel(UIImagePickerController& picker) override;
  void donePickingPicture();

  /// Create is enabled when both texts, as they stand, are not empty and there is a photo.
  void enableCreate();
  void createChallenge();
  void cancel();

 private:
  void presentPicker(UIImagePickerControllerSourceType source, const UIPopoverAnchor& anchor);
  void leave();
};

}  // namespace kindora
