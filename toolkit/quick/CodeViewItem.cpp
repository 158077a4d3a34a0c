// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/CodeViewItem.h"

#include <QQuickWindow>
#include <algorithm>

#include "platform/services/ViewServices.h"
#include "toolkit/controllers/Colors.h"
#include "toolkit/controllers/Screen.h"
#include "toolkit/quick/BlurItem.h"
#include "toolkit/quick/Depth.h"
#include "toolkit/quick/DrawnPlace.h"
#include "toolkit/quick/FaceItem.h"
#include "toolkit/quick/GroundItem.h"
#include "toolkit/quick/LabelItem.h"
#include "toolkit/quick/PageCurlItem.h"
#include "toolkit/quick/PictureItem.h"
#include "toolkit/quick/RecordPart.h"
#include "toolkit/quick/ScrollViewItem.h"
#include "toolkit/quick/ShadowItem.h"
#include "toolkit/view/MotionEffects.h"
#include "toolkit/view/ThemeValues.h"
#include "toolkit/view/UILabel.h"
#include "toolkit/view/UIMotionEffect.h"
#include "toolkit/view/UIScrollView.h"
#include "toolkit/view/UITextField.h"
#include "toolkit/view/UIVisualEffectView.h"

namespace kindora {
namespace {

constexpr double kShadowBlur = 8;  // points

// The part in QML that shows what is special about the view's class.
QString faceOf(const UIView& view) {
  if (dynamic_cast<const UILabel*>(&view) != nullptr) return QStringLiteral("RecordLabel");
  if (dynamic_cast<const UITextField*>(&view) != nullptr) return QStringLiteral("RecordTextField");
  if (dynamic_cast<const UIScrollView*>(&view) != nullptr) {
    return QStringLiteral("RecordScrollView");
  }
  if (dynamic_cast<const UIVisualEffectView*>(&view) != nullptr) {
    return QStringLiteral("RecordPanel");
  }
  return {};
}

}  // namespace

CodeViewItem::CodeViewItem(UIViewRef view, QQuickItem* parent)
    : QQuickItem(parent), view_(std::move(view)) {
  place();
  makeFace();
  subscription_ = view_->observe([this] { viewDidChange(); });
  layouts_ = view_->observeLayout([this] { laidOut(); });
  looks_ = viewServices().looks->observe([this] { viewDidChange(); });
  viewDidChange();
}

CodeViewItem::~CodeViewItem() { rest(); }

void CodeViewItem::rest() {
  subscription_ = {};
  layouts_ = {};
  looks_ = {};
  MotionEffects::shared().hide(view_);
  for (std::size_t i = 0; i < drawn_.size(); ++i) drawn_[i].rest();
}

void CodeViewItem::viewDidChange() {
  const UIViewState& shown = view_->presentation();
  place();
  setOpacity(shown.alpha);
  setScale(shown.scaling);
  setVisible(!view_->isHidden());
  keyframeTransform_.set(view_->keyframeValues().transform, *this);
  const bool takesInput = view_->isUserInteractionEnabled();
  setEnabled(takesInput);
  setAcceptedMouseButtons(takesInput ? Qt::AllButtons : Qt::NoButton);
  setAcceptTouchEvents(takesInput);
  if (shown.shadowOpacity > 0 || shadow_ != nullptr) drawShadow();
  if (const auto* picture = dynamic_cast<const UIImageView*>(view_.get())) drawPicture(*picture);
  drawGround();
  makeFace();
  makeButton();
  drawn_.show(*view_, contentItem());
  // A clip costs a pass of its own.
  setClip(view_->clipsToBounds() && overflows(*view_));
  tellInside();
  followTilt();
}

// A place that was reported is told as a layout and not as a change.
void CodeViewItem::laidOut() {
  place();
  tellInside();
}

void CodeViewItem::tellInside() {
  const UIViewState& shown = view_->presentation();
  const auto* scroll = dynamic_cast<const UIScrollView*>(view_.get());
  const Surroundings now{.origin = shown.frame.origin,
                         .size = shown.frame.size,
                         .scrolled = scroll != nullptr ? scroll->contentOffset() : CGPoint{},
                         .cornerRadius = shown.cornerRadius,
                         .clips = view_->clipsToBounds(),
                         .speaksForAll = view_->tapGestureRecognizer() != nullptr &&
                                         view_->accessibilityLabel().has_value()};
  if (now == told_) return;
  told_ = now;
  for (std::size_t i = 0; i < drawn_.size(); ++i) drawn_[i].surroundingsChanged();
}

void CodeViewItem::surroundingsChanged() {
  place();
  drawGround();
  if (auto* label = qobject_cast<LabelItem*>(face_.get())) label->refresh();
  if (auto* panel = qobject_cast<BlurItem*>(face_.get())) emit panel->viewChanged();
  for (std::size_t i = 0; i < drawn_.size(); ++i) drawn_[i].surroundingsChanged();
}

void CodeViewItem::place() {
  const CGPoint moved = view_->presentation().translation;
  const double ratio =
      window() != nullptr ? window()->effectiveDevicePixelRatio() : mainScreenScale();
  const QRectF rect = drawnRect(*view_, ratio);
  setPosition(rect.topLeft() + QPointF(moved.x, moved.y));
  setSize(rect.size());
}

void CodeViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  for (QQuickItem* each :
       {static_cast<QQuickItem*>(face_.get()), static_cast<QQuickItem*>(button_.get()),
        static_cast<QQuickItem*>(ground_), static_cast<QQuickItem*>(border_)}) {
    if (each != nullptr) each->setSize(size());
  }
}

void CodeViewItem::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged) place();
  if (change == ItemSceneChange || change == ItemVisibleHasChanged) followTilt();
}

void CodeViewItem::followTilt() {
  if (view_->motionEffects().empty()) return;
  if (window() != nullptr && isVisible()) {
    MotionEffects::shared().show(view_);
  } else {
    MotionEffects::shared().hide(view_);
  }
}

void CodeViewItem::makeFace() {
  if (face_) return;
  QString part = faceOf(*view_);
  // Others are read aloud only when they say so; a button is by itself.
  const UIAccessibilityRole role = view_->accessibilityRole();
  const bool speaks = role != UIAccessibilityRole::none && role != UIAccessibilityRole::button;
  if (part.isEmpty() && speaks) part = QStringLiteral("RecordSpeech");
  if (!part.isEmpty()) face_ = makeRecordPart(part, view_, *this);
}

void CodeViewItem::makeButton() {
  if (button_ || !view_->tapGestureRecognizer()) return;
  button_ = makeRecordPart(QStringLiteral("RecordButton"), view_, *this);
}

QQuickItem& CodeViewItem::contentItem() {
  const auto* scroll = qobject_cast<const ScrollViewItem*>(face_.get());
  return scroll != nullptr && scroll->content() != nullptr ? *scroll->content() : *this;
}

void CodeViewItem::drawGround() {
  const UIViewState& shown = view_->presentation();
  const UIViewBorder& border = view_->border();
  // A picture draws its own ground, below which a border would not show.
  const bool pictured = picture_ != nullptr || curl_ != nullptr;
  const bool bordered = border.width > 0 && border.color.alpha > 0;
  GroundItem*& item = pictured ? border_ : ground_;
  if (item == nullptr) {
    if (!bordered && (pictured || shown.backgroundColor.alpha <= 0)) return;
    item = new GroundItem(this);
    item->setZ(pictured ? Depth::Border : Depth::Ground);
    item->setSize(size());
  }
  item->setLook({.color = pictured ? QColor(Qt::transparent)
                                   : toQColor(theme::drawnGround(shown.backgroundColor)),
                 .borderColor = toQColor(border.color),
                 .borderWidth = bordered ? border.width : 0,
                 .radius = visibleRadius(),
                 .cut = roundedCut(*view_)});
}

void CodeViewItem::drawShadow() {
  const UIViewState& shown = view_->presentation();
  if (shadow_ == nullptr) {
    shadow_ = new ShadowItem(this);
    shadow_->setZ(Depth::Shadow);
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
  const UIViewRef parent = view_->superview();
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
    picture_->setGround(toQColor(theme::drawnGround(shown.backgroundColor)));
    picture_->setRadius(visibleRadius());
  }
  if (curl_ != nullptr) {
    curl_->setVisible(!flat);
    curl_->setSize(size());
    curl_->show(picture.image(), visibleRadius(), shown.curl);
  }
}

bool CodeViewItem::handsInputOn() const {
  for (auto up = view_->superview(); up; up = up->superview()) {
    if (up->tapGestureRecognizer()) return true;
    if (dynamic_cast<const UIScrollView*>(up.get()) != nullptr) return true;
  }
  return false;
}

void CodeViewItem::mousePressEvent(QMouseEvent* event) { event->setAccepted(!handsInputOn()); }
// Wheels, unlike presses, come whether they are asked for or not.
void CodeViewItem::wheelEvent(QWheelEvent* event) {
  event->setAccepted(view_->isUserInteractionEnabled() && !handsInputOn());
}
void CodeViewItem::touchEvent(QTouchEvent* event) { event->setAccepted(!handsInputOn()); }

}  // namespace kindora
