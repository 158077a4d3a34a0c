// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>
#include <memory>
#include <vector>

class QQuickItem;

namespace kindora {

class CodeViewItem;
class UIView;

/// The items of a view's subviews that were made in code.
class DrawnSubviews final {
 public:
  DrawnSubviews();
  ~DrawnSubviews();
  Q_DISABLE_COPY_MOVE(DrawnSubviews)

  /// Draws the subviews inside the parent, lowest first. Items of views that stay are kept; those
  /// of the others leave the screen at once. Where an item's coming changes the view again, that
  /// change is drawn as well.
  void show(const UIView& view, QQuickItem& parent);

  [[nodiscard]] std::size_t size() const { return items_.size(); }
  [[nodiscard]] CodeViewItem& operator[](std::size_t index) const { return *items_[index]; }

 private:
  void showOnce(const UIView& view, QQuickItem& parent);

  std::vector<std::unique_ptr<CodeViewItem>> items_;
  bool busy_ = false;
  bool again_ = false;
};

/// Takes the item off the screen at once and deletes it from the event loop: a view may be removed
/// while one of its own buttons is pressed. Null is left alone.
void retire(std::unique_ptr<CodeViewItem> item);

}  // namespace kindora
