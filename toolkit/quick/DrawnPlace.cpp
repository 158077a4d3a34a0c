// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/DrawnPlace.h"

#include <algorithm>
#include <cmath>

#include "toolkit/view/UIScrollView.h"

namespace kindora {
namespace {

// From whatever stands on whole pixels by itself: the topmost view, or what is scrolled.
CGPoint originAtRest(const UIView& view) {
  const CGPoint own = view.frame().origin;
  const UIViewRef parent = view.superview();
  if (!parent || dynamic_cast<const UIScrollView*>(parent.get()) != nullptr) return own;
  const CGPoint base = originAtRest(*parent);
  return {base.x + own.x, base.y + own.y};
}

struct Span {
  double from = 0;
  double length = 0;
};

// A stretch of whole pixels, measured from where the parent was drawn.
Span onPixels(double from, double length, double parent, double ratio) {
  const auto pixel = [ratio](double points) { return std::round(points * ratio) / ratio; };
  const double start = pixel(from);
  const double least = length > 0 ? 1 / ratio : 0;
  return {start - pixel(parent), std::max(pixel(from + length) - start, least)};
}

// The part of the view's space in which it and all inside it are drawn.
QRectF extentOf(const UIView& view) {
  const CGRect& frame = view.presentation().frame;
  QRectF extent(0, 0, frame.size.width, frame.size.height);
  if (view.clipsToBounds()) return extent;
  for (const auto& inside : view.subviews()) {
    const CGPoint origin = inside->presentation().frame.origin;
    if (!inside->isHidden()) extent |= extentOf(*inside).translated(origin.x, origin.y);
  }
  return extent;
}

}  // namespace

QRectF drawnRect(const UIView& view, double ratio) {
  const CGRect& shown = view.presentation().frame;
  if (shown != view.frame()) {
    return {shown.origin.x, shown.origin.y, shown.size.width, shown.size.height};
  }
  const CGPoint origin = originAtRest(view);
  const CGPoint base{origin.x - shown.origin.x, origin.y - shown.origin.y};
  const Span across = onPixels(origin.x, shown.size.width, base.x, ratio);
  const Span down = onPixels(origin.y, shown.size.height, base.y, ratio);
  return {across.from, down.from, across.length, down.length};
}

std::optional<GroundItem::Cut> roundedCut(const UIView& view) {
  CGPoint offset;
  const UIView* inner = &view;
  for (auto up = view.superview(); up; up = up->superview()) {
    offset.x -= inner->presentation().frame.origin.x;
    offset.y -= inner->presentation().frame.origin.y;
    if (const auto* scroll = dynamic_cast<const UIScrollView*>(up.get())) {
      offset.x += scroll->contentOffset().x;
      offset.y += scroll->contentOffset().y;
    }
    const UIViewState& shown = up->presentation();
    if (up->clipsToBounds() && shown.cornerRadius > 0) {
      return GroundItem::Cut{
          QRectF(offset.x, offset.y, shown.frame.size.width, shown.frame.size.height),
          shown.cornerRadius};
    }
    inner = up.get();
  }
  return std::nullopt;
}

bool overflows(const UIView& view) {
  const CGSize size = view.presentation().frame.size;
  const QRectF bounds(0, 0, size.width, size.height);
  return std::ranges::any_of(view.subviews(), [&](const auto& inside) {
    const CGPoint origin = inside->presentation().frame.origin;
    return !inside->isHidden() &&
           !bounds.contains(extentOf(*inside).translated(origin.x, origin.y));
  });
}

}  // namespace kindora
