// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "gallery/phone/PhoneCountries.h"
#include "phoneformat/LuPhoneFormat.h"
#include "platform/services/CharacterSet.h"
#include "toolkit/controllers/UIStaticTableViewController.h"
#include "toolkit/view/UITextField.h"

namespace kindora {

inline constexpr std::string_view kChooseCountry = "chooseCountry";

/// A phone number of any country: laid out as it is typed, judged, and shown as it is dialled from
/// abroad.
class PhoneNumbersViewController : public kindora::UIStaticTableViewController,
                                   public UITextFieldDelegate {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
  Q_PROPERTY(QString countryName READ countryName NOTIFY numberChanged)
  Q_PROPERTY(QString callingCode READ callingCode NOTIFY numberChanged)
  Q_PROPERTY(QString verdict READ verdict NOTIFY numberChanged)
  Q_PROPERTY(bool valid READ isValid NOTIFY numberChanged)
  Q_PROPERTY(QString international READ international NOTIFY numberChanged)

 public:
  std::weak_ptr<UITextField> numberField;

  PhoneNumbersViewController();

  /// The storyboard's work: builds the views and connects the outlets.
  void connectOutlets();

  [[nodiscard]] const std::vector<PhoneCountry>& countries() const { return countries_; }
  /// At first the country of the environment, where the formats know it, else the first of all.
  [[nodiscard]] const PhoneCountry& country() const { return country_; }
  /// The digits that were typed are laid out anew.
  void setCountry(const PhoneCountry& country);

  [[nodiscard]] QString countryName() const { return QString::fromStdString(country_.name); }
  /// With a "+".
  [[nodiscard]] QString callingCode() const;
  [[nodiscard]] bool isValid() const { return valid_; }
  [[nodiscard]] QString verdict() const;
  /// As the number is dialled from abroad; empty while it is not valid.
  [[nodiscard]] QString international() const { return QString::fromStdString(international_); }

  void prepareForSegue(const UIStoryboardSegue& segue, const std::any& sender) override;
  void tableViewDidSelectRowAtIndexPath(IndexPath path) override;
  bool textFieldShouldReturn(UITextField& field) override;
  /// The field's selection says what is replaced, not the range.
  bool textFieldShouldChangeCharactersInRange(UITextField& field, NSRange range,
                                              std::string_view replacementString) override;

 signals:
  void numberChanged();

 private:
  void judge(const std::string& number);

  std::vector<PhoneCountry> countries_;
  PhoneCountry country_;
  std::unique_ptr<LuPhoneFormat> phoneFormat_;
  CharacterSet phoneChars_;
  std::string number_;
  std::string international_;
  bool valid_ = false;
};

}  // namespace kindora
