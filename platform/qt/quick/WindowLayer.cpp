// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/quick/WindowLayer.h"

#include <QAccessibleObject>
#include <QQuickWindow>

namespace kindora {
namespace {

// What assistive programs see of a layer: what it holds, or nothing.
class LayerInterface final : public QAccessibleObject {
 public:
  explicit LayerInterface(WindowLayer* layer) : QAccessibleObject(layer) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(layer().window());
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
    const QQuickWindow* window = layer().window();
    if (window == nullptr) return {};
    const QRect scene = layer().mapRectToScene(layer().boundingRect()).toRect();
    return scene.translated(window->mapToGlobal(QPoint(0, 0)));
  }
  QAccessible::Role role() const override { return QAccessible::Grouping; }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.disabled = layer().isCovered();
    state.invisible = !layer().isVisible();
    return state;
  }

 private:
  [[nodiscard]] WindowLayer& layer() const { return *static_cast<WindowLayer*>(object()); }
  [[nodiscard]] QAccessibleInterface* content() const {
    if (layer().isCovered() || layer().childItems().isEmpty()) return nullptr;
    return QAccessible::queryAccessibleInterface(layer().childItems().constFirst());
  }
};

QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
  auto* layer = qobject_cast<WindowLayer*>(object);
  const bool asked = className == QLatin1String(WindowLayer::staticMetaObject.className());
  return layer != nullptr && asked ? new LayerInterface(layer) : nullptr;
}

}  // namespace

WindowLayer::WindowLayer(QQuickItem* parent) : QQuickItem(parent) {
  static const bool installed = [] {
    QAccessible::installFactory(makeInterface);
    return true;
  }();
  static_cast<void>(installed);
  setFlag(ItemIsFocusScope);
}

void WindowLayer::setCovered(bool covered) {
  if (covered_ == covered) return;
  covered_ = covered;
  setEnabled(!covered);
  emit coveredChanged();
}

}  // namespace kindora
