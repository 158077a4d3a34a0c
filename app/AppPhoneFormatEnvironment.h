// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "phoneformat/PhoneFormatEnvironment.h"

namespace kindora {

/// The phone formats among the app's resources, and the country of the system's locale.
class AppPhoneFormatEnvironment final : public PhoneFormatEnvironment {
 public:
  [[nodiscard]] PhoneFormatData data(std::string_view name, std::string_view type) override;
  /// US when the locale names no country.
  [[nodiscard]] std::string countryCode() override;
};

}  // namespace kindora
