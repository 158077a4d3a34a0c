// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>

#include "app/AppPhoneFormatEnvironment.h"

namespace kindora {

/// The app's formats, in a country of the test's own.
class PhoneFormatsOf final : public PhoneFormatEnvironment {
 public:
  explicit PhoneFormatsOf(std::string country) : country_(std::move(country)) {}
  PhoneFormatData data(std::string_view name, std::string_view type) override {
    return AppPhoneFormatEnvironment().data(name, type);
  }
  std::string countryCode() override { return country_; }

 private:
  std::string country_;
};

}  // namespace kindora
