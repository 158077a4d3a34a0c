// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/invite/InviteFriendTableViewController.h"

#include "app/PhoneNumberEdit.h"
#include "model/Friends.h"
#include "platform/services/Services.h"
#include "screens/shared/PassingAlert.h"
#include "screens/shared/SegueIdentifiers.h"
#include "toolkit/controllers/UINavigationItem.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

enum Section { kNameSection, kNumberSection, kMessageSection };

constexpr double kAlertSeconds = 2;

}  // namespace

InviteFriendTableViewController::InviteFriendTableViewController()
    : UIStaticTableViewController({tr("Name").toStdString(), tr("Phone Number").toStdString(),
                                   tr("Message").toStdString()}),
      phoneFormat(LuPhoneFormat::init()) {}

void InviteFriendTableViewController::connectOutlets() {
  setTitle(tr("Invite a Friend"));
  navigationItem()->setRightBarButtonItem(
      std::make_shared<UIBarButtonItem>(tr("Send"), QString(), [this] { sendInvite(); }));
  UIView& root = *view();
  const auto self = std::static_pointer_cast<InviteFriendTableViewController>(shared_from_this());
  const auto field = [&](std::weak_ptr<UITextField>& outlet, std::string_view name,
                         UIKeyboardType keyboard) {
    const auto made = connectOutlet(outlet, name, root);
    made->setKeyboardType(keyboard);
    made->setReturnKeyType(UIReturnKeyType::next);
    made->setDelegate(self);
  };
  field(nameField, "nameField", UIKeyboardType::standard);
  field(numberField, "numberField", UIKeyboardType::phonePad);
  connectOutlet(messageField, "messageField", root)->setDelegate(self);
}

// --- Life ---

void InviteFriendTableViewController::viewDidLoad() {
  UIStaticTableViewController::viewDidLoad();
  phoneChars = CharacterSet::decimalDigitCharacterSet();
  phoneChars->addCharactersInString("+*#,");
  connected(messageField)->setContentInset(0);
  navigationItem()->rightBarButtonItem()->setEnabled(false);
}

void InviteFriendTableViewController::viewDidAppear(bool animated) {
  UIStaticTableViewController::viewDidAppear(animated);
  if (connected(nameField)->text().empty()) connected(nameField)->becomeFirstResponder();
}

// --- Keyboard and rows ---

bool InviteFriendTableViewController::textFieldShouldReturn(UITextField& field) {
  if (&field == connected(nameField).get()) {
    connected(numberField)->becomeFirstResponder();
  } else if (&field == connected(numberField).get()) {
    connected(messageField)->becomeFirstResponder();
  }
  return false;
}

void InviteFriendTableViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  switch (path.section) {
    case kNameSection:
      connected(nameField)->becomeFirstResponder();
      break;
    case kNumberSection:
      connected(numberField)->becomeFirstResponder();
      break;
    case kMessageSection:
      connected(messageField)->becomeFirstResponder();
      break;
    default:
      break;
  }
}

// --- Editing ---

bool InviteFriendTableViewController::textFieldShouldChangeCharactersInRange(
    UITextField& field, NSRange /*range*/, std::string_view replacementString) {
  const auto number = connected(numberField);
  if (&field != number.get()) {
    enableSend(number->text());
    return true;
  }
  const PhoneNumberEdit edit = editPhoneNumber(*phoneFormat, *phoneChars, number->text(),
                                               number->selectedRange(), replacementString);
  number->setTextColor(edit.valid ? UIColor::blackColor() : theme::kDanger);
  if (edit.isPlain()) {
    enableSend(edit.typed);
    return true;
  }
  number->setText(edit.phone);
  number->setSelectedRange({edit.caret, 0});
  enableSend(edit.phone);
  return false;
}

void InviteFriendTableViewController::textViewDidChange(UITextView& /*view*/) {
  enableSend(connected(numberField)->text());
}

void InviteFriendTableViewController::enableSend(std::string_view number) {
  const bool complete =
      !connected(nameField)->text().empty() && !connected(numberField)->text().empty() &&
      !connected(messageField)->text().empty() && phoneFormat->isPhoneNumberValid(number);
  navigationItem()->rightBarButtonItem()->setEnabled(complete);
}

// --- Sending ---

void InviteFriendTableViewController::sendInvite() {
  view()->endEditing(true);
  const std::string name = connected(nameField)->text();
  if (name.empty()) return;
  invitedFriend =
      std::make_shared<User>(tr("%1 (Invited)").arg(QString::fromStdString(name)).toStdString(),
                             services().bundle->imageNamed("placeholderImage"), std::nullopt);
  Friends::sharedInstance().addFriend(invitedFriend);
  presentPassingAlert(*this, tr("Invitation sent!").toStdString(), std::nullopt, kAlertSeconds,
                      [this] { performSegueWithIdentifier(kUnwindToKindora, shared_from_this()); });
}

}  // namespace kindora
