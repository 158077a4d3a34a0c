// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/QtJsonReader.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kindora {
namespace {

Json converted(const QJsonValue& value) {
  switch (value.type()) {
    case QJsonValue::Bool:
      return {value.toBool()};
    case QJsonValue::Double:
      return {value.toDouble()};
    case QJsonValue::String:
      return {value.toString().toStdString()};
    case QJsonValue::Array: {
      JsonArray array;
      const QJsonArray source = value.toArray();
      array.reserve(static_cast<std::size_t>(source.size()));
      for (const QJsonValue element : source) array.push_back(converted(element));
      return {std::move(array)};
    }
    case QJsonValue::Object: {
      JsonObject object;
      const QJsonObject source = value.toObject();
      object.reserve(static_cast<std::size_t>(source.size()));
      for (auto entry = source.begin(); entry != source.end(); ++entry) {
        object.push_back({entry.key().toStdString(), converted(entry.value())});
      }
      return {std::move(object)};
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
      break;
  }
  return {};
}

}  // namespace

std::optional<Json> QtJsonReader::read(std::string_view text) const {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  // Qt reads no scalar at the top, so every text is read as the one element of an array.
  QByteArray wrapped;
  wrapped.reserve(static_cast<qsizetype>(text.size()) + 2);
  wrapped.append('[').append(text.data(), static_cast<qsizetype>(text.size())).append(']');
  QJsonParseError error;
  const QJsonArray elements = QJsonDocument::fromJson(wrapped, &error).array();
  if (error.error != QJsonParseError::NoError || elements.size() != 1) return std::nullopt;
  return converted(elements.first());
}

}  // namespace kindora
