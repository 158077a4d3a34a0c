// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>
#include <memory>
#include <vector>

#include "platform/qt/quick/KeyframeTransform.h"
#include "platform/view/UIImageView.h"
#include "platform/view/UIView.h"

namespace kindora {

class PageCurlItem;
class PictureItem;
class ShadowItem;

/// Draws a view that was made in code, with all inside it: ground, shadow and picture.
class CodeViewItem final : public QQuickItem {
  Q_OBJECT

 public:
  CodeViewItem(std::shared_ptr<UIView> view, QQuickItem* parent);
  ~CodeViewItem() override;

  [[nodiscard]] const std::shared_ptr<UIView>& view() const { return view_; }

 protected:
  QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
  // An enabled view keeps what happens on it from what lies below.
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void touchEvent(QTouchEvent* event) override;

 private:
  void viewDidChange();
  void drawShadow();
  void drawPicture(const UIImageView& picture);
  [[nodiscard]] double visibleRadius() const;

  std::shared_ptr<UIView> view_;
  ShadowItem* shadow_ = nullptr;
  PictureItem* picture_ = nullptr;
  PageCurlItem* curl_ = nullptr;
  std::vector<std::unique_ptr<CodeViewItem>> drawn_;
  UIView::Subscription subscription_;
  KeyframeTransform keyframeTransform_;
};

/// Makes the items show the subviews made in code, lowest first; items of views that stay are kept.
void drawSubviews(const UIView& view, QQuickItem& parent,
                  std::vector<std::unique_ptr<CodeViewItem>>& drawn);

}  // namespace kindora
