// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QColor>

#include "toolkit/controllers/UICollectionViewCell.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A coloured square with its number.
class ColorCell : public kindora::UICollectionViewCell {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("cells come from the collection")
  Q_PROPERTY(QColor color READ color NOTIFY lookChanged)
  Q_PROPERTY(bool highlighted READ isHighlighted NOTIFY lookChanged)

 public:
  std::weak_ptr<UILabel> numberLabel;

  /// A new cell with its outlet connected.
  [[nodiscard]] static std::shared_ptr<ColorCell> fromPrototype();

  [[nodiscard]] const QColor& color() const { return color_; }
  void setNumberAndColor(int number, const QColor& color);

 private:
  QColor color_;
};

}  // namespace kindora
