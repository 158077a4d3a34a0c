// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>
#include <QPointer>
#include <QRectF>
#include <QVariantList>

#include "toolkit/quick/FaceItem.h"

namespace kindora {

/// Tells a visual effect view's panel what lies behind it and whether that can be blurred: not by
/// the software renderer, and not where the effects module is missing.
class BlurItem : public kindora::FaceItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool blurs READ blurs NOTIFY backdropChanged)
  /// The items that are drawn behind the panel, lowest first.
  Q_PROPERTY(QVariantList behind READ behind NOTIFY backdropChanged)
  /// The panel's place in the space of each of them.
  Q_PROPERTY(QVariantList places READ places NOTIFY placesChanged)
  /// What the panel is drawn in over the blur, or instead of it.
  Q_PROPERTY(QColor tone READ tone NOTIFY toneChanged)
  Q_PROPERTY(QColor windowColor READ windowColor NOTIFY backdropChanged)
  /// The panel's own corner radius, or that of what it fills and is cut off by.
  Q_PROPERTY(double visibleRadius READ visibleRadius NOTIFY viewChanged)

 public:
  explicit BlurItem(QQuickItem* parent = nullptr);

  [[nodiscard]] bool blurs() const { return blurs_; }
  [[nodiscard]] QVariantList behind() const;
  [[nodiscard]] QVariantList places() const;
  [[nodiscard]] QColor tone() const;
  [[nodiscard]] QColor windowColor() const;
  [[nodiscard]] double visibleRadius() const;

 signals:
  void backdropChanged();
  void toneChanged();
  void placesChanged();

 protected:
  void viewDidChange() override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  [[nodiscard]] bool canBlur() const;
  [[nodiscard]] QList<QQuickItem*> itemsBehind() const;
  void watch();
  void look();

  bool blurs_ = false;
  QList<QPointer<QQuickItem>> behind_;
  QList<QRectF> places_;
  QMetaObject::Connection frames_;
  QMetaObject::Connection start_;
};

}  // namespace kindora
