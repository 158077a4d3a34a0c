// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "app/AppPhoneFormatEnvironment.h"

#include <QFile>
#include <QLocale>
#include <cstring>

namespace kindora {

PhoneFormatData AppPhoneFormatEnvironment::data(std::string_view name, std::string_view type) {
  const auto text = [](std::string_view part) {
    return QString::fromUtf8(part.data(), static_cast<qsizetype>(part.size()));
  };
  QFile file(QStringLiteral(":/kindora/data/%1.%2").arg(text(name), text(type)));
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray bytes = file.readAll();
  PhoneFormatData data(static_cast<std::size_t>(bytes.size()));
  std::memcpy(data.data(), bytes.constData(), data.size());
  return data;
}

std::string AppPhoneFormatEnvironment::countryCode() {
  const QLocale locale = QLocale::system();
  if (locale.language() == QLocale::C) return "US";
  const QString code = QLocale::territoryToCode(locale.territory());
  return code.isEmpty() ? "US" : code.toStdString();
}

}  // namespace kindora
