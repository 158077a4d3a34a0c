// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/CoverableItem.h"

#include <QAccessibleObject>
#include <QQuickWindow>

namespace kindora {
namespace {

// What assistive programs see: what the item holds, or nothing.
class CoverableInterface final : public QAccessibleObject {
 public:
  explicit CoverableInterface(CoverableItem* item) : QAccessibleObject(item) {}

  QAccessibleInterface* parent() const override {
    for (QQuickItem* up = item().parentItem(); up != nullptr; up = up->parentItem()) {
      if (auto* found = QAccessible::queryAccessibleInterface(up)) return found;
    }
    return QAccessible::queryAccessibleInterface(item().window());
  }
  int childCount() const override { return content() != nullptr ? 1 : 0; }
  QAccessibleInterface* child(int index) const override { return index == 0 ? content() : nullptr; }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr && child == content() ? 0 : -1;
  }
  QAccessibleInterface* focusChild() const override {
    QAccessibleInterface* held = content();
    return held != nullptr ? held->focusChild() : nullptr;
  }
  QString text(QAccessible::Text /*kind*/) const override { return {}; }
  QRect rect() const override {
    const QQuickWindow* window = item().window();
    if (window == nullptr) return {};
    const QRect scene = item().mapRectToScene(item().boundingRect()).toRect();
    return scene.translated(window->mapToGlobal(QPoint(0, 0)));
  }
  QAccessible::Role role() const override { return QAccessible::Grouping; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = item().isCovered();
    state.invisible = !item().isVisible();
    return state;
  }

 private:
  [[nodiscard]] CoverableItem& item() const { return *static_cast<CoverableItem*>(object()); }
  [[nodiscard]] QAccessibleInterface* content() const {
    if (item().isCovered() || item().childItems().isEmpty()) return nullptr;
    return QAccessible::queryAccessibleInterface(item().childItems().constFirst());
  }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
  auto* item = qobject_cast<CoverableItem*>(object);
  const bool asked = className == QLatin1String(CoverableItem::staticMetaObject.className());
  return item != nullptr && asked ? new CoverableInterface(item) : nullptr;
}

}  // namespace

CoverableItem::CoverableItem(QQuickItem* parent) : QQuickItem(parent) {
  static const bool installed = [] {
    QAccessible::installFactory(makeInterface);
    return true;
  }();
  static_cast<void>(installed);
  setFlag(ItemIsFocusScope);
}

void CoverableItem::setCovered(bool covered) {
  if (covered_ == covered) return;
  covered_ = covered;
  setEnabled(!covered);
  emit coveredChanged();
}

}  // namespace kindora
