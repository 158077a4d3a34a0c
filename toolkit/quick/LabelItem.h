// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/services/SystemLooks.h"
#include "toolkit/quick/FaceItem.h"
#include "toolkit/quick/TextLines.h"

namespace kindora {

/// Draws a label that was made in code, in its middle from top to bottom: line for line what the
/// text measurer has measured for the label's width.
class LabelItem : public kindora::FaceItem {
  Q_OBJECT
  QML_ELEMENT
  /// What is read aloud.
  Q_PROPERTY(QString name READ name NOTIFY viewChanged)
  /// True while it lies on something that is pressed and that says its text.
  Q_PROPERTY(bool spokenByButton READ isSpokenByButton NOTIFY viewChanged)

 public:
  explicit LabelItem(QQuickItem* parent = nullptr);

  [[nodiscard]] QString name() const;
  [[nodiscard]] bool isSpokenByButton() const;
  /// The lines as they are drawn.
  [[nodiscard]] TextLines lines() const;

 protected:
  void viewDidChange() override;
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;

 private:
  // Whatever decides what is drawn.
  struct Look {
    NSAttributedString text;
    UIFont font;
    UIColor color;
    NSTextAlignment alignment = NSTextAlignment::left;
    bool enabled = true;
    int lines = 1;
    double width = 0;
    Looks system;
    friend bool operator==(const Look&, const Look&) = default;
  };

  [[nodiscard]] Look look() const;
  void redraw();

  Look drawn_;
  bool stale_ = true;
};

}  // namespace kindora
