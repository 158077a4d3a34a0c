// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQuickItem>
#include <QVariantMap>
#include <map>
#include <memory>

namespace kindora {

/// Draws cells inside whatever scrolls: it is as large as the content and is told what of it is
/// visible. What it draws is for a derived class to say.
class CellsItem : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS
  /// Makes the item of a cell.
  Q_PROPERTY(
      QQmlComponent* delegate READ delegate WRITE setDelegate NOTIFY delegateChanged REQUIRED)
  Q_PROPERTY(QSizeF visibleSize READ visibleSize WRITE setVisibleSize NOTIFY visibleSizeChanged)
  Q_PROPERTY(double contentY READ contentY WRITE setContentY NOTIFY contentYChanged)

 public:
  using QQuickItem::QQuickItem;

  [[nodiscard]] QQmlComponent* delegate() const { return delegate_; }
  void setDelegate(QQmlComponent* delegate);
  [[nodiscard]] QSizeF visibleSize() const { return visibleSize_; }
  void setVisibleSize(QSizeF size);
  [[nodiscard]] double contentY() const { return contentY_; }
  void setContentY(double contentY);

 signals:
  void delegateChanged();
  void visibleSizeChanged();
  void contentYChanged();

 protected:
  // A cell that is put aside keeps its item for the next time.
  using Items = std::map<const QObject*, std::unique_ptr<QQuickItem>>;

  void componentComplete() override;

  /// What is visible has changed.
  virtual void tellView() = 0;
  /// Places an item for each cell that is shown, and no other.
  virtual void draw() = 0;

  [[nodiscard]] const Items& items() const { return items_; }
  /// The item of the cell; made with these properties and no parent where there is none.
  [[nodiscard]] QQuickItem& itemOf(const QObject& cell, const QVariantMap& properties);
  virtual void forgetItems() { items_.clear(); }

 private:
  QPointer<QQmlComponent> delegate_;
  QSizeF visibleSize_;
  double contentY_ = 0;
  Items items_;
};

}  // namespace kindora
