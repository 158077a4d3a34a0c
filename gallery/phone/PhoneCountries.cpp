// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/phone/PhoneCountries.h"

#include <QLocale>
#include <QString>
#include <algorithm>

#include "platform/services/Services.h"

namespace kindora {
namespace {

constexpr int kCallingCodes = 1000;  // they have three digits at most

std::string nameOf(std::string_view code) {
  const QString text = QString::fromUtf8(code.data(), static_cast<qsizetype>(code.size()));
  const QLocale::Territory territory = QLocale::codeToTerritory(text);
  if (territory == QLocale::AnyTerritory) return text.toUpper().toStdString();
  return QLocale::territoryToString(territory).toStdString();
}

}  // namespace

std::vector<PhoneCountry> phoneCountries(const LuPhoneFormat& phoneFormat) {
  std::vector<PhoneCountry> countries;
  for (int i = 1; i < kCallingCodes; ++i) {
    const std::string callingCode = std::to_string(i);
    const auto codes = phoneFormat.countriesForCallingCode(callingCode);
    if (!codes) continue;
    for (const std::string& code : *codes) countries.push_back({code, nameOf(code), callingCode});
  }
  std::sort(countries.begin(), countries.end(), [](const auto& a, const auto& b) {
    const int order = services().text->compare(a.name, b.name);
    return order != 0 ? order < 0 : a.callingCode < b.callingCode;
  });
  return countries;
}

std::vector<PhoneCountry> countriesMatching(const std::vector<PhoneCountry>& countries,
                                            std::string_view text) {
  const std::string wanted = services().text->caseFolded(text);
  const std::string digits = wanted.starts_with('+') ? wanted.substr(1) : wanted;
  std::vector<PhoneCountry> matching;
  for (const PhoneCountry& country : countries) {
    if (services().text->caseFolded(country.name).find(wanted) != std::string::npos ||
        country.callingCode.starts_with(digits)) {
      matching.push_back(country);
    }
  }
  return matching;
}

std::string internationalPhoneNumber(LuPhoneFormat& phoneFormat, std::string_view number) {
  if (!phoneFormat.isPhoneNumberValid(number)) return {};
  const std::string dialled = LuPhoneFormat::strip(number);
  if (dialled.starts_with('+')) return phoneFormat.format(dialled);
  const std::string callingCode = phoneFormat.defaultCallingCode().value_or("");
  const CallingCodeInfo* plan = phoneFormat.callingCodeInfo(callingCode);
  if (plan == nullptr) return {};

  std::vector<std::string> candidates;
  for (const std::string& prefix : plan->intlPrefixes) {
    if (dialled.starts_with(prefix))
      candidates.push_back(std::string("+").append(dialled, prefix.size()));
  }
  for (const std::string& prefix : plan->trunkPrefixes) {
    if (!dialled.starts_with(prefix)) continue;
    candidates.push_back(std::string("+").append(callingCode).append(dialled, prefix.size()));
  }
  candidates.push_back(std::string("+").append(callingCode).append(dialled));
  // What begins like a prefix need not be one.
  for (const std::string& candidate : candidates) {
    std::string laidOut = phoneFormat.format(candidate);
    if (phoneFormat.isPhoneNumberValid(laidOut)) return laidOut;
  }
  return {};
}

}  // namespace kindora
