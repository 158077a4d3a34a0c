// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/IcuTextService.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include "platform/FatalError.h"

namespace kindora {
namespace {

const icu::Collator& rootCollator() {
  // Made at the first comparison, because loading its tables takes time that the launch can do
  // without.
  static const icu::Collator& collator = []() -> const icu::Collator& {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Collator* made = icu::Collator::createInstance(icu::Locale::getRoot(), status);
    if (made == nullptr || U_FAILURE(status)) fatalError("no collation tables");
    return *made;
  }();
  return collator;
}

icu::StringPiece piece(std::string_view text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

}  // namespace

int IcuTextService::compare(std::string_view a, std::string_view b) const {
  UErrorCode status = U_ZERO_ERROR;
  return rootCollator().compareUTF8(piece(a), piece(b), status);
}

bool IcuTextService::isDecimalDigit(char32_t character) const {
  return u_isdigit(static_cast<UChar32>(character)) != 0;
}

std::string IcuTextService::caseFolded(std::string_view text) const {
  std::string result;
  icu::StringByteSink<std::string> sink(&result, static_cast<std::int32_t>(text.size()));
  UErrorCode status = U_ZERO_ERROR;
  icu::CaseMap::utf8Fold(0, piece(text), sink, nullptr, status);
  return result;
}

std::string IcuTextService::capitalized(std::string_view text) const {
  std::string result;
  icu::UnicodeString::fromUTF8(piece(text))
      .toTitle(nullptr, icu::Locale::getRoot())
      .toUTF8String(result);
  return result;
}

}  // namespace kindora
