// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What there is to be seen, or read aloud, in a window.
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>
#include <functional>
#include <string>
#include <vector>

namespace kindora {

/// Something in the accessibility tree, as it was when it was looked at.
struct Thing {
  std::string name;
  QAccessible::Role role = QAccessible::NoRole;
  QAccessible::State state;
  QRectF rect;            ///< in the window
  QRectF clip;            ///< what it could be seen through, in the window
  bool opaque = true;     ///< else there is nothing to be seen of it
  bool overlaid = false;  ///< it is text, and a button lies on it or under it
  QPointer<QQuickItem> item;

  /// What of it is in sight.
  [[nodiscard]] QRectF seen() const { return opaque ? rect.intersected(clip) : QRectF(); }
  /// Whether enough is in sight to be read or pressed.
  [[nodiscard]] bool inSight() const;
  /// Whether that is its name, or all of it but what is said about it behind a comma.
  [[nodiscard]] bool isCalled(const std::string& name) const;
  [[nodiscard]] bool isPressable() const;
  [[nodiscard]] bool isText() const {
    return role == QAccessible::StaticText || role == QAccessible::Heading;
  }
  [[nodiscard]] bool isField() const { return role == QAccessible::EditableText; }
  /// Null once it has gone.
  [[nodiscard]] QAccessibleInterface* interface() const;
};

/// Everything that is not hidden, in the order of the tree. Where an alert or a sheet is up, what
/// belongs to it stands last, as all that lies on top does.
[[nodiscard]] std::vector<Thing> thingsIn(QQuickWindow& window);

/// A line for each thing, for messages.
[[nodiscard]] std::string described(const std::vector<Thing>& things);

/// The thing that has the keyboard; with an empty name where nothing has it that is read aloud.
[[nodiscard]] Thing focusedThing(QQuickWindow& window);

}  // namespace kindora
