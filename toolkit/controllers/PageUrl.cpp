// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/PageUrl.h"

#include <QString>

namespace kindora {

QUrl pageUrl(QStringView module, QStringView name) {
  QString folder = module.toString();
  folder.replace(u'.', u'/');
  return QUrl(QStringLiteral("qrc:/qt/qml/%1/%2.qml").arg(folder, name));
}

}  // namespace kindora
