// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/LabelItem.h"

#include <QPainter>
#include <QSGNode>
#include <cmath>
#include <utility>

#include "toolkit/controllers/Colors.h"
#include "toolkit/quick/RasterNode.h"
#include "toolkit/view/ThemeValues.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

constexpr double kOverhang = 2;  // points by which a letter may reach beyond its line

}  // namespace

LabelItem::LabelItem(QQuickItem* parent) : FaceItem(parent) { setFlag(ItemHasContents); }

QString LabelItem::name() const { return spoken().isEmpty() ? text() : spoken(); }

bool LabelItem::isSpokenByButton() const {
  for (auto up = view() ? view()->superview() : nullptr; up; up = up->superview()) {
    if (up->tapGestureRecognizer() && up->accessibilityLabel()) return true;
  }
  return false;
}

LabelItem::Look LabelItem::look() const {
  const auto* label = dynamic_cast<const UILabel*>(view().get());
  if (label == nullptr) return {};
  // The record's own width, not the item's: that one was moved to whole pixels.
  return {.text = label->shownText(),
          .font = label->shownFont(),
          .color = label->isEnabled() ? theme::drawnText(label->textColor().value_or(theme::kInk))
                                      : theme::kFaintInk,
          .alignment = label->textAlignment().value_or(NSTextAlignment::left),
          .enabled = label->isEnabled(),
          .lines = label->numberOfLines(),
          .width = label->presentation().frame.size.width,
          .system = theme::looks()};
}

TextLines LabelItem::lines() const {
  const Look now = look();
  const auto colors = now.enabled ? TextLines::Colors::ofParts : TextLines::Colors::ofPainter;
  return {now.text, now.font, now.width, now.lines, colors};
}

void LabelItem::viewDidChange() {
  FaceItem::viewDidChange();
  if (Look now = look(); now != drawn_) {
    drawn_ = std::move(now);
    redraw();
  }
}

void LabelItem::redraw() {
  stale_ = true;
  update();
}

void LabelItem::geometryChange(const QRectF& now, const QRectF& before) {
  FaceItem::geometryChange(now, before);
  if (now.size() != before.size()) redraw();
}

void LabelItem::itemChange(ItemChange change, const ItemChangeData& data) {
  FaceItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) redraw();
}

QSGNode* LabelItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  if (width() <= 0 || height() <= 0 || drawn_.text.string().empty()) {
    delete old;
    stale_ = true;
    return nullptr;
  }
  const QRectF place = boundingRect().adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
  return rasterNode(*this, old, place, std::exchange(stale_, false), [this](QPainter& painter) {
    const TextLines text = lines();
    painter.setPen(toQColor(drawn_.color));
    const double top = std::floor((height() - text.extent().size.height) / 2);
    text.draw(painter, {0, top}, drawn_.width, drawn_.alignment);
  });
}

}  // namespace kindora
