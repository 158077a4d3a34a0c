// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/InputMethodHand.h"

#include <QString>

namespace kindora {

void InputMethodHand::type(const std::string& field, const std::string& text) {
  touchField(field);
  placeCaret(static_cast<int>(QString::fromStdString(textOf(field)).size()));
  QString composed;
  for (const QChar character : QString::fromStdString(text)) {
    QInputMethodEvent event(QString(character), {});
    event.setCommitString(composed);
    composed = character;
    send(event);
  }
  QInputMethodEvent event;
  event.setCommitString(composed);
  send(event);
}

}  // namespace kindora
