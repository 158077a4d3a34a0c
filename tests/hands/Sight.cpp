// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/Sight.h"

#include <algorithm>
#include <sstream>

namespace kindora {
namespace {

Thing thingOf(QAccessibleInterface& interface, QQuickItem& item, const QQuickWindow& window) {
  Thing thing{.name = interface.text(QAccessible::Name).toStdString(),
              .role = interface.role(),
              .state = interface.state(),
              .rect = item.mapRectToScene({0, 0, item.width(), item.height()}),
              .clip = QRectF(0, 0, window.width(), window.height()),
              .item = &item};
  double opacity = 1;
  for (const QQuickItem* up = &item; up != nullptr; up = up->parentItem()) {
    opacity *= up->opacity();
    if (up == &item || !up->clip()) continue;
    thing.clip &= up->mapRectToScene({0, 0, up->width(), up->height()});
  }
  thing.opaque = opacity > 0.05;
  return thing;
}

void collect(QAccessibleInterface* interface, const QQuickWindow& window,
             std::vector<Thing>& things) {
  if (interface == nullptr || interface->state().invisible) return;
  if (auto* item = qobject_cast<QQuickItem*>(interface->object())) {
    things.push_back(thingOf(*interface, *item, window));
  }
  for (int i = 0; i < interface->childCount(); ++i) collect(interface->child(i), window, things);
}

}  // namespace

bool Thing::inSight() const {
  // A row half under a bar can be read and pressed; a sliver of it cannot.
  constexpr double kEnough = 24;
  constexpr double kRounding = 0.5;
  const QRectF visible = seen();
  return !overlaid && !visible.isEmpty() &&
         visible.width() > std::min(rect.width(), kEnough) - kRounding &&
         visible.height() > std::min(rect.height(), kEnough) - kRounding;
}

bool Thing::isCalled(const std::string& wanted) const {
  return name == wanted || name.starts_with(wanted + ", ");
}

bool Thing::isPressable() const {
  switch (role) {
    case QAccessible::Button:
    case QAccessible::PageTab:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::ListItem:
    case QAccessible::MenuItem:
    case QAccessible::Link:
      return true;
    default:
      return false;
  }
}

QAccessibleInterface* Thing::interface() const {
  return item ? QAccessible::queryAccessibleInterface(item) : nullptr;
}

std::vector<Thing> thingsIn(QQuickWindow& window) {
  std::vector<Thing> things;
  collect(QAccessible::queryAccessibleInterface(&window), window, things);
  for (Thing& text : things) {
    text.overlaid = text.isText() && std::ranges::any_of(things, [&](const Thing& other) {
                      return other.isPressable() && other.seen().contains(text.rect.center()) &&
                             !other.item->isAncestorOf(text.item);
                    });
  }
  return things;
}

std::string described(const std::vector<Thing>& things) {
  std::ostringstream text;
  for (const Thing& thing : things) {
    if (thing.name.empty()) continue;
    text << "  " << thing.role << " \"" << thing.name << "\" " << thing.rect.x() << ","
         << thing.rect.y() << " " << thing.rect.width() << "x" << thing.rect.height()
         << (thing.inSight() ? "" : "  (out of sight)") << (thing.state.focused ? "  (focus)" : "")
         << (thing.state.disabled ? "  (disabled)" : "") << "\n";
  }
  return text.str();
}

Thing focusedThing(QQuickWindow& window) {
  for (QQuickItem* up = window.activeFocusItem(); up != nullptr; up = up->parentItem()) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(up);
    if (interface == nullptr || interface->text(QAccessible::Name).isEmpty()) continue;
    return thingOf(*interface, *up, window);
  }
  return {};
}

}  // namespace kindora
