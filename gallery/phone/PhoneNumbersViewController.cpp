// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/phone/PhoneNumbersViewController.h"

#include <algorithm>

#include "app/PhoneNumberEdit.h"
#include "gallery/phone/CountryTableViewController.h"
#include "phoneformat/PhoneFormatEnvironment.h"
#include "platform/services/Services.h"
#include "toolkit/controllers/UIStoryboard.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

enum Section { kCountrySection, kNumberSection };

}  // namespace

PhoneNumbersViewController::PhoneNumbersViewController()
    : UIStaticTableViewController({"Country", "Phone number"}),
      phoneFormat_(LuPhoneFormat::init()),
      phoneChars_(CharacterSet::decimalDigitCharacterSet()) {
  phoneChars_.addCharactersInString("+*#,");
  countries_ = phoneCountries(*phoneFormat_);
  const std::string here = services().text->caseFolded(phoneFormatEnvironment().countryCode());
  const auto found = std::find_if(countries_.begin(), countries_.end(),
                                  [&](const PhoneCountry& each) { return each.code == here; });
  if (found != countries_.end()) {
    country_ = *found;
  } else if (!countries_.empty()) {
    country_ = countries_.front();
  }
  phoneFormat_ = LuPhoneFormat::initWithDefaultCountry(country_.code);
}

void PhoneNumbersViewController::connectOutlets() {
  setTitle(QStringLiteral("Phone numbers"));
  const auto field = connectOutlet(numberField, "numberField", *view());
  field->setKeyboardType(UIKeyboardType::phonePad);
  field->setReturnKeyType(UIReturnKeyType::next);
  field->setPlaceholder("Type a number");
  field->setDelegate(std::static_pointer_cast<PhoneNumbersViewController>(shared_from_this()));
}

void PhoneNumbersViewController::setCountry(const PhoneCountry& country) {
  if (country == country_) return;
  country_ = country;
  phoneFormat_ = LuPhoneFormat::initWithDefaultCountry(country_.code);
  const auto field = connected(numberField);
  const std::string number = phoneFormat_->format(LuPhoneFormat::strip(field->text()));
  field->setText(number);
  judge(number);
}

QString PhoneNumbersViewController::callingCode() const {
  return u'+' + QString::fromStdString(country_.callingCode);
}

QString PhoneNumbersViewController::verdict() const {
  if (number_.empty()) return QStringLiteral("No number yet");
  return valid_ ? QStringLiteral("A valid number") : QStringLiteral("Not a valid number");
}

void PhoneNumbersViewController::judge(const std::string& number) {
  number_ = number;
  valid_ = phoneFormat_->isPhoneNumberValid(number);
  international_ = internationalPhoneNumber(*phoneFormat_, number);
  connected(numberField)->setTextColor(valid_ ? UIColor::blackColor() : theme::kDanger);
  emit numberChanged();
}

void PhoneNumbersViewController::prepareForSegue(const UIStoryboardSegue& segue,
                                                 const std::any& /*sender*/) {
  if (segue.identifier != kChooseCountry) return;
  auto& choice = dynamic_cast<CountryTableViewController&>(*segue.destinationViewController);
  choice.countries = countries_;
  choice.chosenCode = country_.code;
  const auto self = std::static_pointer_cast<PhoneNumbersViewController>(shared_from_this());
  choice.didChoose = [chooser = std::weak_ptr(self)](const PhoneCountry& country) {
    if (const auto alive = chooser.lock()) alive->setCountry(country);
  };
}

void PhoneNumbersViewController::tableViewDidSelectRowAtIndexPath(IndexPath path) {
  if (path.section == kCountrySection) performSegueWithIdentifier(kChooseCountry);
  if (path.section == kNumberSection) connected(numberField)->becomeFirstResponder();
}

bool PhoneNumbersViewController::textFieldShouldReturn(UITextField& field) {
  field.resignFirstResponder();
  return false;
}

bool PhoneNumbersViewController::textFieldShouldChangeCharactersInRange(
    UITextField& field, NSRange /*range*/, std::string_view replacementString) {
  const PhoneNumberEdit edit = editPhoneNumber(*phoneFormat_, phoneChars_, field.text(),
                                               field.selectedRange(), replacementString);
  if (edit.isPlain()) {
    judge(edit.typed);
    return true;
  }
  field.setText(edit.phone);
  field.setSelectedRange({edit.caret, 0});
  judge(edit.phone);
  return false;
}

}  // namespace kindora
