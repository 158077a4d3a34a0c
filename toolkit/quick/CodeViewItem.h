// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QQuickItem>
#include <memory>

#include "platform/Subscription.h"
#include "toolkit/quick/DrawnSubviews.h"
#include "toolkit/quick/KeyframeTransform.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UIView.h"

namespace kindora {

class GroundItem;
class PageCurlItem;
class PictureItem;
class ShadowItem;
class FaceItem;

/// Draws a view that was made in code, with all inside it: ground, border, shadow, and what its
/// class shows: a picture, text, a field to type into, a blurred panel, what scrolls. A view with a
/// tap gesture recogniser is a button.
class CodeViewItem final : public QQuickItem {
  Q_OBJECT

 public:
  CodeViewItem(UIViewRef view, QQuickItem* parent);
  ~CodeViewItem() override;

  [[nodiscard]] const UIViewRef& view() const { return view_; }
  /// Follows the view no more.
  void rest();

 protected:
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  // An enabled view keeps what happens on it from what lies below, unless it lies inside a view
  // that is pressed or scrolled: then that view has it.
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void touchEvent(QTouchEvent* event) override;

 private:
  // What of a view changes how those inside it are drawn.
  struct Surroundings {
    CGPoint origin;
    CGSize size;
    CGPoint scrolled;
    double cornerRadius = 0;
    bool clips = false;
    bool speaksForAll = false;
    friend bool operator==(const Surroundings&, const Surroundings&) = default;
  };

  void viewDidChange();
  void laidOut();
  void surroundingsChanged();
  void tellInside();
  void place();
  void makeFace();
  void makeButton();
  void followTilt();
  void drawGround();
  void drawShadow();
  void drawPicture(const UIImageView& picture);
  [[nodiscard]] double visibleRadius() const;
  [[nodiscard]] bool handsInputOn() const;
  [[nodiscard]] QQuickItem& contentItem();

  UIViewRef view_;
  ShadowItem* shadow_ = nullptr;
  GroundItem* ground_ = nullptr;
  GroundItem* border_ = nullptr;  // above a picture
  PictureItem* picture_ = nullptr;
  PageCurlItem* curl_ = nullptr;
  std::unique_ptr<FaceItem> face_;
  std::unique_ptr<FaceItem> button_;
  DrawnSubviews drawn_;
  Surroundings told_;
  Subscription subscription_;
  Subscription layouts_;
  Subscription looks_;
  KeyframeTransform keyframeTransform_;
};

}  // namespace kindora
