// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/create/CreateChallengeTableViewController.h"

#include "model/ChallengeData.h"
#include "platform/TextRange.h"
#include "platform/services/Services.h"
#include "screens/badges/PassOnAlert.h"
#include "screens/shared/ImageNames.h"

namespace kindora {
namespace {

enum Section { kTitleSection, kDescriptionSection, kPhotoSection };
constexpr IndexPath kPhotoRow{kPhotoSection, 0};

constexpr UIColor kWellColor{199.0 / 255, 199.0 / 255, 205.0 / 255, 1};
constexpr double kWellBorder = 2;         // points
constexpr double kWellCornerRadius = 25;  // points

}  // namespace

CreateChallengeTableViewController::CreateChallengeTableViewController()
    : UIStaticTableViewController({tr("Title").toStdString(), tr("Description").toStdString(),
                                   tr("Photo").toStdString()}) {}

void CreateChallengeTableViewController::connectOutlets() {
  setTitle(tr("Create Challenge"));
  navigationItem()->setLeftBarButtonItem(
      std::make_shared<UIBarButtonItem>(tr("Cancel"), QString(), [this] { cancel(); }));
  navigationItem()->setRightBarButtonItem(
      std::make_shared<UIBarButtonItem>(tr("Create"), QString(), [this] { createChallenge(); }));
  UIView& root = *view();
  const auto field = [&](std::weak_ptr<UITextField>& outlet, std::string_view name,
                         const QString& placeholder, UIReturnKeyType returnKey) {
    const auto made = connectOutlet(outlet, name, root);
    made->setPlaceholder(placeholder.toStdString());
    made->setReturnKeyType(returnKey);
    made->setDelegate(
        std::static_pointer_cast<CreateChallengeTableViewController>(shared_from_this()));
    made->editingChanged = [this](UITextField& edited) { textFieldDidChange(edited); };
  };
  field(challengeTitleField, "challengeTitleField", tr("Make someone smile"),
        UIReturnKeyType::next);
  field(challengeDescriptionField, "challengeDescriptionField", tr("What is there to do?"),
        UIReturnKeyType::done);
  connectOutlet(challengeImageView, "challengeImageView", root)
      ->setContentMode(UIViewContentMode::center);
}

// --- Life ---

void CreateChallengeTableViewController::viewDidLoad() {
  UIStaticTableViewController::viewDidLoad();
  const auto well = connected(challengeImageView);
  const UIImageRef plus = services().bundle->imageNamed(kPlusImage);
  well->setImage(plus ? plus->imageWithRenderingMode(UIImageRenderingMode::alwaysTemplate)
                      : nullptr);
  well->setTintColor(kWellColor);
  well->setBorder({kWellColor, kWellBorder});
  well->setCornerRadius(kWellCornerRadius);
  well->setClipsToBounds(true);
  navigationItem()->rightBarButtonItem()->setEnabled(false);
}

void CreateChallengeTableViewController::viewDidAppear(bool animated) {
  UIStaticTableViewController::viewDidAppear(animated);
  connected(challengeTitleField)->becomeFirstResponder();
}

bool CreateChallengeTableViewController::goBack() {
  cancel();
  return true;
}

void CreateChallengeTableViewController::cancel() { leave(); }

void CreateChallengeTableViewController::leave() {
  if (UIViewController* presenting = presentingViewController()) {
    presenting->dismissViewController(true);
  }
}

// --- Keyboard and rows ---

bool CreateChallengeTableViewController::textFieldShouldReturn(UITextField& field) {
  const auto description = connected(challengeDescriptionField);
  if (&field == connected(challengeTitleField).get()) {
    description->becomeFirstResponder();
  } else if (&field == description.get()) {
    description->resignFirstResponder();
  }
  return true;
}

void CreateChallengeTableViewController::textFieldDidChange(UITextField& /*field*/) {
  enableCreate();
}

void CreateChallengeTableViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  switch (path.section) {
    case kTitleSection:
      connected(challengeTitleField)->becomeFirstResponder();
      break;
    case kDescriptionSection:
      connected(challengeDescriptionField)->becomeFirstResponder();
      break;
    case kPhotoSection:
      view()->endEditing(true);
      pickPhoto();
      break;
    default:
      break;
  }
}

// --- Photo ---

void CreateChallengeTableViewController::pickPhoto() { showPicker(connected(challengeImageView)); }

void CreateChallengeTableViewController::showPicker(const UIViewRef& anchor) {
  const UIPopoverAnchor place{anchor, anchor->bounds(), UIPopoverArrowDirection::down};
  const auto sheet = makeViewController<UIAlertController>(std::nullopt, std::nullopt,
                                                           UIAlertControllerStyle::actionSheet);
  sheet->setPopoverAnchor(place);
  // The sheet has gone when a handler runs.
  const auto source = [&](const QString& title, UIImagePickerControllerSourceType type) {
    sheet->addAction({title.toStdString(), UIAlertActionStyle::normal,
                      guarded([this, type, place] { presentPicker(type, place); })});
  };
  source(tr("Take Photo"), UIImagePickerControllerSourceType::camera);
  source(tr("Choose Existing"), UIImagePickerControllerSourceType::photoLibrary);
  sheet->addAction({tr("Cancel").toStdString(), UIAlertActionStyle::cancel,
                    guarded([this] { tableView()->deselectRowAtIndexPath(kPhotoRow, true); })});
  presentViewController(sheet, true);
}

void CreateChallengeTableViewController::presentPicker(UIImagePickerControllerSourceType source,
                                                       const UIPopoverAnchor& anchor) {
  const auto picker = makeViewController<UIImagePickerController>(source);
  picker->setDelegate(
      std::static_pointer_cast<CreateChallengeTableViewController>(shared_from_this()));
  picker->setAllowsEditing(true);
  picker->setPopoverAnchor(anchor);
  presentViewController(picker, true);
}

void CreateChallengeTableViewController::imagePickerController(
    UIImagePickerController& /*picker*/, const UIImagePickerInfo& didFinishPickingMediaWithInfo) {
  if (const UIImageRef& edited = didFinishPickingMediaWithInfo.editedImage) {
    selectedImage = edited;
    const auto well = connected(challengeImageView);
    well->setContentMode(UIViewContentMode::scaleAspectFill);
    well->setImage(edited);
    well->setBorder({kWellColor, 0});
  }
  donePickingPicture();
}

void CreateChallengeTableViewController::imagePickerControllerDidCancel(
    UIImagePickerController& /*picker*/) {
  donePickingPicture();
}

void CreateChallengeTableViewController::donePickingPicture() {
  dismissViewController(true);
  tableView()->deselectRowAtIndexPath(kPhotoRow, true);
  enableCreate();
}

// --- Creating ---

void CreateChallengeTableViewController::enableCreate() {
  const bool complete = !connected(challengeTitleField)->text().empty() &&
                        !connected(challengeDescriptionField)->text().empty() &&
                        selectedImage != nullptr;
  navigationItem()->rightBarButtonItem()->setEnabled(complete);
}

void CreateChallengeTableViewController::createChallenge() {
  view()->endEditing(true);
  const auto challenge = std::make_shared<Challenge>();
  challenge->created = true;
  challenge->title = stringByTrimmingWhitespaceAndNewlines(connected(challengeTitleField)->text());
  challenge->description =
      stringByTrimmingWhitespaceAndNewlines(connected(challengeDescriptionField)->text());
  challenge->challengeImage = selectedImage;
  ChallengeData::sharedInstance().addCreatedChallenge(challenge);

  presentViewController(
      passOnAlert(tr("Challenge created!").toStdString(),
                  tr("You can find this challenge in the Badges tab. Would you like "
                     "to pass this challenge on now?")
                      .toStdString(),
                  challenge, guarded([this] { leave(); })),
      true);
}

}  // namespace kindora
