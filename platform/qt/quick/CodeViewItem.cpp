// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/quick/CodeViewItem.h"

#include <QQuickWindow>
#include <QSGRectangleNode>
#include <algorithm>

#include "platform/qt/quick/Colors.h"
#include "platform/qt/quick/PageCurlItem.h"
#include "platform/qt/quick/PictureItem.h"
#include "platform/qt/quick/ShadowItem.h"
#include "platform/qt/quick/ViewItem.h"

namespace kindora {
namespace {

constexpr double kShadowBlur = 8;  // points

}  // namespace

CodeViewItem::CodeViewItem(std::shared_ptr<UIView> view, QQuickItem* parent)
    : QQuickItem(parent), view_(std::move(view)) {
  setFlag(ItemHasContents);
  subscription_ = view_->observe([this] { viewDidChange(); });
  viewDidChange();
}

CodeViewItem::~CodeViewItem() = default;

void CodeViewItem::viewDidChange() {
  const UIViewState& shown = view_->presentation();
  setPosition(
      {shown.frame.origin.x + shown.translation.x, shown.frame.origin.y + shown.translation.y});
  setSize({shown.frame.size.width, shown.frame.size.height});
  setOpacity(shown.alpha);
  setScale(shown.scaling);
  setVisible(!view_->isHidden());
  keyframeTransform_.set(view_->keyframeValues().transform, *this);
  const bool blocks = view_->isUserInteractionEnabled();
  setAcceptedMouseButtons(blocks ? Qt::AllButtons : Qt::NoButton);
  setAcceptTouchEvents(blocks);
  if (shown.shadowOpacity > 0 || shadow_ != nullptr) drawShadow();
  if (const auto* picture = dynamic_cast<const UIImageView*>(view_.get())) drawPicture(*picture);
  drawSubviews(*view_, *this, drawn_);
  update();
}

void CodeViewItem::drawShadow() {
  const UIViewState& shown = view_->presentation();
  if (shadow_ == nullptr) {
    shadow_ = new ShadowItem(this);
    shadow_->setZ(-1);  // below the view's own ground
  }
  shadow_->setPosition({shown.shadowOffset.width, shown.shadowOffset.height});
  shadow_->setSize(size());
  shadow_->setRadius(view_->shadowPathRadius() >= 0 ? view_->shadowPathRadius()
                                                    : shown.cornerRadius);
  shadow_->setBlur(kShadowBlur);
  shadow_->setOpacity(shown.shadowOpacity);
}

// A view that fills one which clips has that one's corners.
double CodeViewItem::visibleRadius() const {
  const double own = view_->presentation().cornerRadius;
  const std::shared_ptr<UIView> parent = view_->superview();
  const bool cut = parent && parent->clipsToBounds() &&
                   view_->presentation().frame == CGRect{{0, 0}, parent->presentation().frame.size};
  return cut ? std::max(own, parent->presentation().cornerRadius) : own;
}

void CodeViewItem::drawPicture(const UIImageView& picture) {
  const UIViewState& shown = view_->presentation();
  const bool flat = shown.curl == 1;
  if (flat && picture_ == nullptr) picture_ = new PictureItem(this);
  if (!flat && curl_ == nullptr) curl_ = new PageCurlItem(this);
  if (picture_ != nullptr) {
    picture_->setVisible(flat);
    picture_->setSize(size());
    picture_->setImage({picture.image()});
    picture_->setTint(templateTint(picture));
    picture_->setFits(picture.contentMode() == UIViewContentMode::scaleAspectFit);
    picture_->setGround(toQColor(shown.backgroundColor));
    picture_->setRadius(visibleRadius());
  }
  if (curl_ != nullptr) {
    curl_->setVisible(!flat);
    curl_->setSize(size());
    curl_->show(picture.image(), visibleRadius(), shown.curl);
  }
}

QSGNode* CodeViewItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  const UIColor& ground = view_->presentation().backgroundColor;
  // A picture draws its own ground.
  if (ground.alpha == 0 || picture_ != nullptr) {
    delete old;
    return nullptr;
  }
  auto* node = static_cast<QSGRectangleNode*>(old);
  if (node == nullptr) node = window()->createRectangleNode();
  node->setRect(boundingRect());
  node->setColor(toQColor(ground));
  return node;
}

void CodeViewItem::mousePressEvent(QMouseEvent* event) { event->accept(); }
// Wheels, unlike presses, come whether they are asked for or not.
void CodeViewItem::wheelEvent(QWheelEvent* event) {
  event->setAccepted(view_->isUserInteractionEnabled());
}
void CodeViewItem::touchEvent(QTouchEvent* event) { event->accept(); }

void drawSubviews(const UIView& view, QQuickItem& parent,
                  std::vector<std::unique_ptr<CodeViewItem>>& drawn) {
  std::vector<std::unique_ptr<CodeViewItem>> next;
  for (const auto& subview : view.subviews()) {
    if (!subview->isMadeInCode()) continue;
    const auto known = std::ranges::find_if(
        drawn, [&](const auto& item) { return item && item->view() == subview; });
    next.push_back(known != drawn.end() ? std::move(*known)
                                        : std::make_unique<CodeViewItem>(subview, &parent));
    next.back()->setZ(static_cast<double>(next.size()));
  }
  drawn = std::move(next);
}

}  // namespace kindora
