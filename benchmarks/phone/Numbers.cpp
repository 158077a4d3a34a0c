// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/phone/Numbers.h"

#include <phonenumbers/phonenumberutil.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "phoneformat/LuPhoneFormat.h"

namespace kindora::phonebench {
namespace {

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

std::vector<Country> makeCountries() {
  const PhoneNumberUtil& peer = *PhoneNumberUtil::GetInstance();
  std::set<std::string> regions;
  peer.GetSupportedRegions(&regions);
  std::vector<Country> result;
  for (const std::string& region : regions) {
    Country& country = result.emplace_back();
    std::ranges::transform(region, std::back_inserter(country.code),
                           [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    for (const auto type :
         {PhoneNumberUtil::FIXED_LINE, PhoneNumberUtil::MOBILE, PhoneNumberUtil::TOLL_FREE}) {
      PhoneNumber number;
      if (!peer.GetExampleNumberForType(region, type, &number)) continue;
      std::string national;
      std::string international;
      peer.Format(number, PhoneNumberUtil::NATIONAL, &national);
      peer.Format(number, PhoneNumberUtil::E164, &international);
      country.numbers.push_back({LuPhoneFormat::strip(national), international});
    }
  }
  return result;
}

}  // namespace

const std::vector<Country>& countries() {
  static const std::vector<Country> made = makeCountries();
  return made;
}

const PhoneFormatData& shippedData() {
  static const PhoneFormatData data = readPhoneFormatFile(KINDORA_PHONEFORMATS_FILE).value();
  return data;
}

}  // namespace kindora::phonebench
