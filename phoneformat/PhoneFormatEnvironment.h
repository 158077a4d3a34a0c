// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "phoneformat/PhoneFormatData.h"

namespace kindora {

/// What formatters that are made without data of their own ask of the program around them.
class PhoneFormatEnvironment {
 public:
  virtual ~PhoneFormatEnvironment() = default;
  /// The resource "name.type" whole; empty, quietly, when there is none.
  [[nodiscard]] virtual PhoneFormatData data(std::string_view name, std::string_view type) = 0;
  /// The ISO 3166 code of the country the user is in, in any case; empty when unknown.
  [[nodiscard]] virtual std::string countryCode() = 0;
};

/// Installs what all formatters made from now on ask. For a program's start, before any other
/// thread runs (here startProgram does it); without it there is no data and no country.
void installPhoneFormatEnvironment(std::shared_ptr<PhoneFormatEnvironment> environment);

/// The environment in force; one without data and country when none was installed.
[[nodiscard]] PhoneFormatEnvironment& phoneFormatEnvironment();

}  // namespace kindora
