// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>
#include <memory>
#include <optional>

#include "toolkit/controllers/ViewHandle.h"
#include "toolkit/view/UIView.h"
#include "toolkit/view/UIViewRenderer.h"

namespace kindora {

class CodeViewItem;

/// Draws a tree of views made in code. Its root is as large as the item, and what needs layout is
/// laid out before the next frame. At most one item draws a tree.
class RecordItem : public QQuickItem, private UIViewRenderer {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(kindora::ViewHandle record READ record WRITE setRecord NOTIFY recordChanged)

 public:
  explicit RecordItem(QQuickItem* parent = nullptr);
  ~RecordItem() override;

  [[nodiscard]] ViewHandle record() const { return {view_}; }
  void setRecord(const ViewHandle& record);

 signals:
  void recordChanged();

 protected:
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void updatePolish() override;

 private:
  [[nodiscard]] std::optional<CGPoint> originInWindow() const override;
  void layoutScheduled() override { polish(); }
  void leave();
  void place();

  UIViewRef view_;
  std::unique_ptr<CodeViewItem> drawn_;
};

}  // namespace kindora
