// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/Theme.h"

#include "platform/services/ViewServices.h"
#include "toolkit/quick/QtViewServices.h"

namespace kindora {

Theme::Theme(QObject* parent) : QObject(parent) {
  ensureViewServices();
  looks_ = viewServices().looks->observe([this] { emit looksChanged(); });
}

double Theme::textScale() { return theme::looks().textScale; }

QColor Theme::drawnGround(const QColor& asked, const QColor& card) {
  QColor drawn = asked.rgb() == QColor(Qt::white).rgb() ? card : asked;
  drawn.setAlpha(asked.alpha());
  return drawn;
}

}  // namespace kindora
