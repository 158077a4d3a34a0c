// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/KeyboardReach.h"

#include <QKeyEvent>
#include <QVariant>
#include <algorithm>
#include <iterator>
#include <utility>

namespace kindora {
namespace {

// Points of its surroundings that come into sight with what has the keyboard: a heading and the
// beginning of what follows it.
constexpr double kAround = 60;

bool takesText(const QQuickItem& item) {
  return item.flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

void collectControls(const QQuickItem& in, std::vector<QQuickItem*>& controls) {
  for (QQuickItem* child : in.childItems()) {
    if (!child->isVisible() || !child->isEnabled()) continue;
    if (child->activeFocusOnTab()) controls.push_back(child);
    collectControls(*child, controls);
  }
}

bool liesBeyond(const QRectF& place, const QRectF& from, int step) {
  return step > 0 ? place.center().y() > from.bottom() : place.center().y() < from.top();
}

const QRectF& nearest(const std::vector<QRectF>& places, QPointF point) {
  return *std::ranges::min_element(places, {}, [point](const QRectF& place) {
    return (place.center() - point).manhattanLength();
  });
}

}  // namespace

void KeyboardReach::setArea(QQuickItem* area) {
  if (area_ == area) return;
  if (area_) disconnect(area_, nullptr, this, nullptr);
  if (content_) disconnect(content_, nullptr, this, nullptr);
  area_ = area;
  content_ = area_ ? area_->property("contentItem").value<QQuickItem*>() : nullptr;
  if (area_) {
    connect(area_, &QQuickItem::windowChanged, this, &KeyboardReach::watch);
    connect(content_, &QQuickItem::childrenChanged, this, &KeyboardReach::watchItems);
    watchItems();
  }
  watch(area_ ? area_->window() : nullptr);
  emit areaChanged();
}

void KeyboardReach::watch(QQuickWindow* window) {
  if (window_) window_->removeEventFilter(this);
  disconnect(focus_);
  window_ = window;
  if (!window_) return;
  window_->installEventFilter(this);
  focus_ = connect(window_, &QQuickWindow::activeFocusItemChanged, this, &KeyboardReach::showFocus);
}

void KeyboardReach::turnPage(int pages) {
  scrollTo(number("contentY") + pages * std::max(1.0, area_->height() - kAround));
}

// --- The order of the tree ---

void KeyboardReach::watchItems() {
  for (const QQuickItem* item : content_->childItems()) {
    connect(item, &QQuickItem::yChanged, this, &KeyboardReach::orderSoon, Qt::UniqueConnection);
  }
  orderSoon();
}

void KeyboardReach::orderSoon() {
  if (!std::exchange(ordersSoon_, true)) {
    QMetaObject::invokeMethod(this, &KeyboardReach::order, Qt::QueuedConnection);
  }
}

void KeyboardReach::order() {
  ordersSoon_ = false;
  if (!content_) return;
  QList<QQuickItem*> items = content_->childItems();
  std::ranges::stable_sort(items, {},
                           [](const QQuickItem* item) { return std::pair(item->y(), item->x()); });
  for (qsizetype i = 1; i < items.size(); ++i) items[i]->stackAfter(items[i - 1]);
}

// --- Keys ---

bool KeyboardReach::eventFilter(QObject* watched, QEvent* event) {
  return content_ && watched == window_ && event->type() == QEvent::KeyPress &&
         pressed(static_cast<const QKeyEvent&>(*event));
}

bool KeyboardReach::pressed(const QKeyEvent& key) {
  const QQuickItem* item = window_->activeFocusItem();
  if (item == nullptr || (item != area_ && !content_->isAncestorOf(item))) return false;
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  // Where no control has the keyboard, it comes from the upper edge.
  const bool inside = item != area_;
  const QRectF from = inside ? placeOf(*item) : QRectF(0, number("contentY"), 0, 0);
  if (inside && (key.key() == Qt::Key_Backtab || key.key() == Qt::Key_Tab)) {
    const bool back = key.key() == Qt::Key_Backtab || modifiers == Qt::ShiftModifier;
    return goOn(from, back ? -1 : 1);
  }
  if (modifiers != Qt::NoModifier) return false;
  // A field that takes text has use for all keys but these.
  if (key.key() == Qt::Key_Down) return goToLine(from, 1);
  if (key.key() == Qt::Key_PageDown) return goByPage(from, 1);
  if (takesText(*item)) return false;
  switch (key.key()) {
    case Qt::Key_Up:
      return inside && goToLine(from, -1);
    case Qt::Key_PageUp:
      return inside && goByPage(from, -1);
    case Qt::Key_Left:
      return inside && goAlongLine(from, -1);
    case Qt::Key_Right:
      return inside && goAlongLine(from, 1);
    case Qt::Key_Home:
      return goToEnd(-1);
    case Qt::Key_End:
      return goToEnd(1);
    default:
      return false;
  }
}

// What stands next in the tree gets the keyboard by itself.
bool KeyboardReach::goOn(const QRectF& from, int step) {
  show(from);
  const Places near = placesInReach(Kind::any);
  const auto here = std::ranges::find(near, from);
  if (here != near.end() && (step > 0 ? here + 1 != near.end() : here != near.begin())) {
    return false;
  }
  const Places there = placesBeyond(from, step, Kind::any);
  if (there.empty()) return false;
  focusAt(step > 0 ? there.front() : there.back());
  return true;
}

bool KeyboardReach::goToLine(const QRectF& from, int step) {
  comeBack(from);
  const Places there = placesBeyond(from, step, Kind::noText);
  if (there.empty()) return false;
  focusAt(nearest(there, from.center()));
  return true;
}

bool KeyboardReach::goAlongLine(const QRectF& from, int step) {
  Places there = placesInReach(Kind::noText);
  std::erase_if(there, [&](const QRectF& place) {
    return liesBeyond(place, from, 1) || liesBeyond(place, from, -1) ||
           (place.center().x() - from.center().x()) * step <= 0;
  });
  if (there.empty()) return false;
  focusAt(nearest(there, from.center()));
  return true;
}

bool KeyboardReach::goByPage(const QRectF& from, int step) {
  comeBack(from);
  const double page = step * std::max(from.height(), area_->height() - 2 * kAround);
  scrollTo(number("contentY") + page);
  const Places there = placesBeyond(from, step, Kind::noText);
  if (there.empty()) {
    show(from);
    return false;
  }
  focusAt(nearest(there, from.center() + QPointF(0, page)));
  return true;
}

bool KeyboardReach::goToEnd(int step) {
  // How long a list is it knows only at its end.
  while (scrollTo(step > 0 ? lowest() : highest())) {
  }
  // What stands there may be no control.
  const QRectF end(0, number("contentY") + (step > 0 ? area_->height() : 0), 0, 0);
  const Places there = placesBeyond(end, -step, Kind::noText);
  if (there.empty()) return false;
  focusAt(step > 0 ? there.back() : there.front());
  return true;
}

// --- Places ---

std::vector<QQuickItem*> KeyboardReach::itemsInReach(Kind kind) {
  order();
  std::vector<QQuickItem*> controls;
  collectControls(*content_, controls);
  const double top = number("contentY") - kAround;
  const double bottom = top + area_->height() + 2 * kAround;
  std::erase_if(controls, [&](const QQuickItem* item) {
    const QRectF place = placeOf(*item);
    return place.bottom() <= top || place.top() >= bottom ||
           (kind == Kind::noText && takesText(*item));
  });
  return controls;
}

KeyboardReach::Places KeyboardReach::placesInReach(Kind kind) {
  Places places;
  std::ranges::transform(itemsInReach(kind), std::back_inserter(places),
                         [this](const QQuickItem* item) { return placeOf(*item); });
  return places;
}

// Scrolls to look where nothing is in reach; where it finds nothing, it puts all back.
KeyboardReach::Places KeyboardReach::placesBeyond(const QRectF& from, int step, Kind kind) {
  const double before = number("contentY");
  Places places;
  do {
    places = placesInReach(kind);
    std::erase_if(places, [&](const QRectF& place) { return !liesBeyond(place, from, step); });
  } while (places.empty() && scrollTo(number("contentY") + step * area_->height() / 2));
  if (places.empty() && scrollTo(before) && from.isValid()) focusAt(from);
  return places;
}

void KeyboardReach::focusAt(const QRectF& place) {
  show(place);
  const std::vector<QQuickItem*> items = itemsInReach(Kind::any);
  const auto item =
      std::ranges::find(items, place, [this](const QQuickItem* each) { return placeOf(*each); });
  if (item != items.end()) (*item)->forceActiveFocus(Qt::TabFocusReason);
}

void KeyboardReach::showFocus() {
  QQuickItem* const item = window_->activeFocusItem();
  if (!content_) return;
  // A row that has left for being out of sight hands the keyboard on, which is to move nothing
  // back.
  const bool handedOn =
      hadFocus_ && !(focused_ && focused_->isVisible() && content_->isAncestorOf(focused_));
  const bool inside = item != nullptr && content_->isAncestorOf(item);
  if (inside) focused_ = item;
  if (item != nullptr) hadFocus_ = inside || (handedOn && item->isAncestorOf(content_));
  if (!inside || handedOn || area_->property("moving").toBool()) return;
  // What is under a finger stays there.
  if (item->property("focusReason").toInt() != Qt::MouseFocusReason) show(placeOf(*item));
}

void KeyboardReach::show(const QRectF& place) {
  const double height = area_->height();
  const double around = std::clamp((height - place.height()) / 2, 0.0, kAround);
  const double top = place.top() - around;
  const double bottom = place.bottom() + around - height;
  scrollTo(std::min(top, std::max(number("contentY"), bottom)));
}

// What has the keyboard may have been scrolled out of sight.
void KeyboardReach::comeBack(const QRectF& from) {
  const double top = number("contentY");
  if (from.bottom() < top || from.top() > top + area_->height()) show(from);
}

// --- The Flickable ---

QRectF KeyboardReach::placeOf(const QQuickItem& item) const {
  return item.mapRectToItem(content_, {0, 0, item.width(), item.height()});
}

double KeyboardReach::number(const char* property) const {
  return area_->property(property).toDouble();
}

double KeyboardReach::highest() const { return number("originY") - number("topMargin"); }

double KeyboardReach::lowest() const {
  return std::max(highest(), number("originY") + number("contentHeight") + number("bottomMargin") -
                                 area_->height());
}

// Whether that changed anything.
bool KeyboardReach::scrollTo(double contentY) {
  const double wanted = std::clamp(contentY, highest(), lowest());
  if (wanted == number("contentY")) return false;
  QMetaObject::invokeMethod(area_, "cancelFlick");
  area_->setProperty("contentY", wanted);
  emit scrolled();
  return true;
}

}  // namespace kindora
