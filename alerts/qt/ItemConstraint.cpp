// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ItemConstraint.h"

#include <memory>

#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/qt/ItemView.h"

namespace kindora {
namespace {

// QML says the toolkit's own numbers.
constexpr bool same(ItemConstraint::Attribute shown, NSLayoutAttribute meant) {
  return static_cast<int>(shown) == static_cast<int>(meant);
}
constexpr bool same(ItemConstraint::Relation shown, NSLayoutRelation meant) {
  return static_cast<int>(shown) == static_cast<int>(meant);
}
static_assert(same(ItemConstraint::NotAnAttribute, NSLayoutAttribute::notAnAttribute));
static_assert(same(ItemConstraint::Left, NSLayoutAttribute::left));
static_assert(same(ItemConstraint::Right, NSLayoutAttribute::right));
static_assert(same(ItemConstraint::Top, NSLayoutAttribute::top));
static_assert(same(ItemConstraint::Bottom, NSLayoutAttribute::bottom));
static_assert(same(ItemConstraint::Width, NSLayoutAttribute::width));
static_assert(same(ItemConstraint::Height, NSLayoutAttribute::height));
static_assert(same(ItemConstraint::CenterX, NSLayoutAttribute::centerX));
static_assert(same(ItemConstraint::CenterY, NSLayoutAttribute::centerY));
static_assert(same(ItemConstraint::Baseline, NSLayoutAttribute::baseline));
static_assert(same(ItemConstraint::FirstBaseline, NSLayoutAttribute::firstBaseline));
static_assert(same(ItemConstraint::LessThanOrEqual, NSLayoutRelation::lessThanOrEqual));
static_assert(same(ItemConstraint::Equal, NSLayoutRelation::equal));
static_assert(same(ItemConstraint::GreaterThanOrEqual, NSLayoutRelation::greaterThanOrEqual));

}  // namespace

ItemConstraint::ItemConstraint(QObject* parent) : QObject(parent) {}
ItemConstraint::~ItemConstraint() { uninstall(); }

template <typename Value>
void ItemConstraint::assign(Value& field, Value value) {
  if (field == value) return;
  field = value;
  install();
  emit changed();
}

void ItemConstraint::setItem(QQuickItem* item) {
  if (item_ == item) return;
  QQuickItem* before = item_;
  item_ = item;
  watch(before, item);
}

void ItemConstraint::setTo(QQuickItem* item) {
  namesTwo_ = true;
  if (to_ == item) return;
  QQuickItem* before = to_;
  to_ = item;
  watch(before, item);
}

void ItemConstraint::watch(QQuickItem* before, QQuickItem* item) {
  if (before != nullptr && before != item_ && before != to_) before->disconnect(this);
  if (item != nullptr) {
    // Its record has to hear of a new parent before this does.
    static_cast<void>(viewOfItem(*item));
    connect(item, &QQuickItem::parentChanged, this, &ItemConstraint::install, Qt::UniqueConnection);
    connect(item, &QObject::destroyed, this, &ItemConstraint::changed, Qt::UniqueConnection);
  }
  install();
  emit changed();
}

void ItemConstraint::setAttribute(Attribute attribute) { assign(attribute_, attribute); }
void ItemConstraint::setRelation(Relation relation) { assign(relation_, relation); }
void ItemConstraint::setToAttribute(Attribute attribute) { assign(toAttribute_, attribute); }
void ItemConstraint::setMultiplier(double multiplier) { assign(multiplier_, multiplier); }
void ItemConstraint::setPriority(double priority) { assign(priority_, priority); }
void ItemConstraint::setActive(bool active) { assign(active_, active); }

void ItemConstraint::setConstant(double constant) {
  if (constant_ == constant) return;
  constant_ = constant;
  if (constraint_) constraint_->setConstant(constant);
  emit changed();
}

ItemConstraint::Attribute ItemConstraint::toAttribute() const {
  if (!to_) return NotAnAttribute;
  return toAttribute_ == NotAnAttribute ? attribute_ : toAttribute_;
}

void ItemConstraint::componentComplete() {
  isComplete_ = true;
  install();
}

void ItemConstraint::install() {
  uninstall();
  // What is to speak of an item that has gone, or is not there yet, is no constant size meanwhile.
  const bool lacksItem = namesTwo_ && !to_;
  if (!isComplete_ || !active_ || !item_ || lacksItem) return;
  const UIViewRef view = viewOfItem(*item_);
  const UIViewRef other = to_ ? viewOfItem(*to_) : nullptr;
  constraint_ = std::make_shared<NSLayoutConstraint>(
      NSLayoutConstraint::Parts{.firstItem = view,
                                .firstAttribute = static_cast<NSLayoutAttribute>(attribute_),
                                .relation = static_cast<NSLayoutRelation>(relation_),
                                .secondItem = other,
                                .secondAttribute = static_cast<NSLayoutAttribute>(toAttribute()),
                                .multiplier = multiplier_,
                                .constant = constant_,
                                .priority = priority_});
  const UIViewRef owner = other ? qav_commonAncestorWithView(view, other) : view;
  if (owner) owner->addConstraint(constraint_);
}

void ItemConstraint::uninstall() {
  if (!constraint_) return;
  if (const auto owner = constraint_->owner()) owner->removeConstraint(constraint_);
  constraint_.reset();
}

}  // namespace kindora
