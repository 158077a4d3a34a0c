// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <iostream>

#include "phoneformat/LuPhoneFormat.h"

int main() {
  const auto data = kindora::readPhoneFormatFile(DATA_FILE);
  if (!data) return 1;
  kindora::LuPhoneFormat formatter(*data, "gb");
  std::cout << formatter.format("02071234567") << '\n';
  return formatter.isPhoneNumberValid("+442071234567") ? 0 : 1;
}
