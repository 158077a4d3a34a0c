// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringView>
#include <QUrl>

namespace kindora {

/// Where a file of a QML module lies within the program:
///
///   const QUrl url = pageUrl(u"Kindora.Toolkit.Hosts", u"TabHost");
[[nodiscard]] QUrl pageUrl(QStringView module, QStringView name);

}  // namespace kindora
