// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/KeysHand.h"

#include <QTest>
#include <array>
#include <set>
#include <utility>

namespace kindora {

void KeysHand::key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&program().window(), key, modifiers);
  program().frame();
}

bool KeysHand::hasFocus(const std::string& name) {
  const Thing focused = focusedThing(program().window());
  return focused.isCalled(name) &&
         (focused.isPressable() || focused.isField() || focused.state.focusable);
}

void KeysHand::walk(const std::string& goal, const std::function<bool()>& arrived) {
  constexpr int kMostStops = 120;
  constexpr int kMostLines = 80;
  std::string passed;
  std::size_t stopCount = 0;
  program().rest();
  // What a list has above its first row in sight comes before that row only, hence the way back.
  for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ShiftModifier}) {
    std::set<std::pair<const QQuickItem*, std::string>> stops;  // items are used again
    for (int i = 0; i < kMostStops; ++i) {
      if (arrived()) return;
      const Thing stop = focusedThing(program().window());
      if (i > 0 && !stops.insert({stop.item, stop.name}).second) break;
      key(modifiers == Qt::NoModifier ? Qt::Key_Tab : Qt::Key_Backtab, modifiers);
      passed += " \"" + focusedThing(program().window()).name + "\"";
    }
    stopCount = stops.size();
  }
  // A list may be one stop of Tab.
  for (std::size_t i = 0; i <= stopCount; ++i) {
    for (int line = 0; line < kMostLines; ++line) {
      if (arrived()) return;
      const QQuickItem* stop = program().window().activeFocusItem();
      key(Qt::Key_Down);
      if (program().window().activeFocusItem() == stop) break;
    }
    key(Qt::Key_Tab);
  }
  giveUp("neither Tab nor Down leads to \"" + goal + "\", but to" + passed);
}

void KeysHand::focus(const std::string& name) {
  walk(name, [&] { return hasFocus(name); });
}

void KeysHand::scrollTo(const std::string& name) {
  walk(name, [&] { return canSee(name); });
}

void KeysHand::pressInReach(const Thing& thing) {
  focus(thing.name);
  program().rest();
  constexpr std::array kKeys{Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter};
  key(kKeys.at(static_cast<std::size_t>(presses_++) % kKeys.size()));
}

void KeysHand::type(const std::string& name, const std::string& text) {
  focus(fieldCalled(name).name);
  key(Qt::Key_End);
  for (const char character : text) {
    QTest::keyClick(&program().window(), character);
    program().frame();
  }
}

void KeysHand::eraseAt(const std::string& field, int position) {
  focus(field);
  key(Qt::Key_Home);
  for (int i = 0; i < position; ++i) key(Qt::Key_Right);
  key(Qt::Key_Delete);
}

void KeysHand::back() {
  program().rest();
  key(Qt::Key_Escape);
  program().rest();
}

void KeysHand::rejectRow(const std::string& row) {
  focus(row);
  key(Qt::Key_Delete);
}

void KeysHand::zoomIn(const std::string& square) {
  focus(square);
  for (int i = 0; i < 8; ++i) key(Qt::Key_Plus);
}

void KeysHand::increase(const std::string& slider) {
  focus(slider);
  key(Qt::Key_Right);
}

void KeysHand::shake(int swings) {
  program().rest();
  constexpr Qt::KeyboardModifiers kModifiers = Qt::ControlModifier | Qt::ShiftModifier;
  key(Qt::Key_K, kModifiers);
  for (int i = 4; i < swings; ++i) {
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_K, kModifiers, QString(), true);
    QCoreApplication::sendEvent(&program().window(), &repeated);
    program().frame();
  }
  program().rest();
}

}  // namespace kindora
