// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/AssistiveHand.h"

#include <algorithm>

namespace kindora {

using Actions = QAccessibleActionInterface;

bool AssistiveHand::act(const Thing& thing, const QStringList& actions) {
  QAccessibleInterface* interface = thing.interface();
  Actions* offered = interface != nullptr ? interface->actionInterface() : nullptr;
  if (offered == nullptr) return false;
  for (const QString& action : actions) {
    if (!offered->actionNames().contains(action)) continue;
    offered->doAction(action);
    program().frame();
    return true;
  }
  return false;
}

void AssistiveHand::pressInReach(const Thing& thing) {
  if (!act(thing, {Actions::pressAction(), Actions::toggleAction()})) {
    giveUp("\"" + thing.name + "\" offers no press");
  }
}

// A list is read page by page; where it does not offer that, by going to its last row.
// Down to the end and up again, until the thing comes.
void AssistiveHand::scrollTo(const std::string& name) {
  constexpr int kMostPages = 60;
  bool down = true;
  std::string before;
  for (int i = 0; i < kMostPages; ++i) {
    if (find(name).item) return;
    const std::vector<Thing> all = things();
    const std::string now = described(all);
    if (now == before) {
      if (!down) break;
      down = false;
    }
    before = now;
    bool moved = false;
    for (const Thing& thing : all) {
      moved = moved ||
              (thing.role == QAccessible::List &&
               act(thing,
                   down ? QStringList{Actions::nextPageAction(), Actions::scrollDownAction()}
                        : QStringList{Actions::previousPageAction(), Actions::scrollUpAction()}));
    }
    const auto row = std::ranges::max_element(all, {}, [](const Thing& thing) {
      return thing.isPressable() && thing.role != QAccessible::PageTab ? thing.rect.bottom() : -1;
    });
    if (!moved && down && row != all.end()) act(*row, {Actions::setFocusAction()});
    program().rest();
  }
  giveUp("\"" + name + "\" does not come into the tree");
}

void AssistiveHand::write(const std::string& name, const QString& text) {
  const Thing thing = fieldCalled(name);
  QAccessibleInterface* interface = thing.interface();
  act(thing, {Actions::setFocusAction()});
  if (QAccessibleEditableTextInterface* editable = interface->editableTextInterface()) {
    editable->replaceText(0, interface->textInterface()->characterCount(), text);
  } else {
    interface->setText(QAccessible::Value, text);
  }
  program().frame();
}

void AssistiveHand::type(const std::string& field, const std::string& text) {
  write(field, QString::fromStdString(textOf(field) + text));
}

// A tool says what the text is to be. A number that lacks but a separator is the same number, so
// the character behind it has to go.
void AssistiveHand::eraseAt(const std::string& field, int position) {
  const std::string before = textOf(field);
  const auto end = static_cast<int>(before.size());
  for (int i = position; i < end && textOf(field) == before; ++i) {
    write(field, QString::fromStdString(before).remove(i, 1));
  }
}

void AssistiveHand::back() { press("Back"); }

void AssistiveHand::rejectRow(const std::string& row) {
  scrollTo(row);
  const Thing thing = sees(row);
  if (!act(thing, {Actions::showMenuAction(), Actions::scrollLeftAction()})) {
    giveUp("\"" + thing.name + "\" offers nothing that leads to its rejection");
  }
  press("Reject");
}

void AssistiveHand::zoomIn(const std::string& square) {
  for (int i = 0; i < 8; ++i) {
    if (!act(sees(square), {Actions::increaseAction()})) {
      giveUp("\"" + square + "\" offers no increase");
    }
  }
}

void AssistiveHand::increase(const std::string& slider) {
  scrollTo(slider);
  if (!act(sees(slider), {Actions::increaseAction()})) {
    giveUp("\"" + slider + "\" offers no increase");
  }
}

}  // namespace kindora
