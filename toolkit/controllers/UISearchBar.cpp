// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UISearchBar.h"

#include "toolkit/controllers/Colors.h"

namespace kindora {
namespace {

const UIFont kSearchFont{"AvenirNext-Medium", 16, false};  // as bars do, it keeps its size

// The return key puts the keyboard away; what was found stays.
class SearchFieldDelegate final : public UITextFieldDelegate {
 public:
  bool textFieldShouldReturn(UITextField& field) override { return field.resignFirstResponder(); }
};

}  // namespace

UISearchBar::UISearchBar() : fieldDelegate_(std::make_shared<SearchFieldDelegate>()) {
  field_->setFont(kSearchFont);
  field_->setPlaceholder(tr("Search").toStdString());
  field_->setAutocorrectionType(UITextAutocorrectionType::no);
  field_->setDelegate(fieldDelegate_);
  field_->editingChanged = [this](UITextField&) { emit edited(); };
}

// Who draws the field may keep it longer.
UISearchBar::~UISearchBar() {
  field_->editingChanged = nullptr;
  field_->resignFirstResponder();
}

void UISearchBar::setFrame(CGRect frame) {
  frame_ = frame;
  emit lookChanged();
}

void UISearchBar::setBackgroundColor(const UIColor& color) {
  backgroundColor_ = color;
  emit lookChanged();
}

void UISearchBar::setShowsCancelButton(bool shows) {
  if (showsCancelButton_ == shows) return;
  showsCancelButton_ = shows;
  emit showsCancelButtonChanged();
}

void UISearchBar::press() {
  field_->becomeFirstResponder();
  emit pressed();
}

void UISearchBar::edit(const QString& text) {
  if (this->text() == text) return;
  field_->replaceRange({0, utf16Length(field_->decidedText())}, text.toStdString());
}

void UISearchBar::reportWidth(double width) {
  if (frame_.size.width == width) return;
  setFrame({frame_.origin, {width, frame_.size.height}});
}

QColor UISearchBar::background() const { return toQColor(backgroundColor_); }

}  // namespace kindora
