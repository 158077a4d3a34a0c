// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/User.h"
#include "phoneformat/LuPhoneFormat.h"
#include "platform/services/CharacterSet.h"
#include "toolkit/controllers/UIStaticTableViewController.h"
#include "toolkit/view/UITextField.h"
#include "toolkit/view/UITextView.h"

namespace kindora {

/// The user invites a friend by name and phone number. The number is laid out as it is typed, and
/// red while it is none. Nothing is sent anywhere: the friend joins the list.
class InviteFriendTableViewController : public kindora::UIStaticTableViewController,
                                        public UITextFieldDelegate,
                                        public UITextViewDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  std::weak_ptr<UITextField> nameField;
  std::weak_ptr<UITextField> numberField;
  std::weak_ptr<UITextView> messageField;
  /// Of the last invitation.
  UserRef invitedFriend;
  /// For the country of the system's locale.
  const std::unique_ptr<LuPhoneFormat> phoneFormat;
  /// What counts as part of a number when the caret is placed; from viewDidLoad on.
  std::optional<CharacterSet> phoneChars;

  InviteFriendTableViewController();

  /// The storyboard's work: builds the views and the bar, and connects the outlets.
  void connectOutlets();

  void viewDidLoad() override;
  void viewDidAppear(bool animated) override;

  bool textFieldShouldReturn(UITextField& field) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;
  /// For the number, the field's selection says what is replaced, not the range.
  bool textFieldShouldChangeCharactersInRange(UITextField& field, NSRange range,
                                              std::string_view replacementString) override;
  void textViewDidChange(UITextView& view) override;

  /// Send is enabled when the three entries, as they stand, are not empty and the number given is
  /// valid. An edit of the name or the number is judged before it counts, so that Send follows the
  /// name one edit late.
  void enableSend(std::string_view number);
  void sendInvite();
};

}  // namespace kindora
