// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "phoneformat/PhoneFormatEnvironment.h"

#include <utility>

namespace kindora {
namespace {

class NoEnvironment final : public PhoneFormatEnvironment {
 public:
  PhoneFormatData data(std::string_view, std::string_view) override { return {}; }
  std::string countryCode() override { return {}; }
};

// Never destroyed, so that a formatter can be made while the program ends.
std::shared_ptr<PhoneFormatEnvironment>& environmentSlot() {
  static auto& installed =
      *new std::shared_ptr<PhoneFormatEnvironment>(std::make_shared<NoEnvironment>());
  return installed;
}

}  // namespace

void installPhoneFormatEnvironment(std::shared_ptr<PhoneFormatEnvironment> environment) {
  environmentSlot() = environment ? std::move(environment) : std::make_shared<NoEnvironment>();
}

PhoneFormatEnvironment& phoneFormatEnvironment() { return *environmentSlot(); }

}  // namespace kindora
