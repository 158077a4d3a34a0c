// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/NSLayoutConstraint.h"

#include <sstream>
#include <utility>

#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

std::uint64_t nextSerial() {
  static std::uint64_t last = 0;  // main thread only
  return ++last;
}

const char* nameOf(NSLayoutAttribute attribute) {
  switch (attribute) {
    case NSLayoutAttribute::notAnAttribute:
      return "none";
    case NSLayoutAttribute::left:
      return "left";
    case NSLayoutAttribute::right:
      return "right";
    case NSLayoutAttribute::top:
      return "top";
    case NSLayoutAttribute::bottom:
      return "bottom";
    case NSLayoutAttribute::width:
      return "width";
    case NSLayoutAttribute::height:
      return "height";
    case NSLayoutAttribute::centerX:
      return "centerX";
    case NSLayoutAttribute::centerY:
      return "centerY";
    case NSLayoutAttribute::baseline:
      return "baseline";
    case NSLayoutAttribute::firstBaseline:
      return "firstBaseline";
  }
  return "unknown";
}

const char* signOf(NSLayoutRelation relation) {
  switch (relation) {
    case NSLayoutRelation::lessThanOrEqual:
      return " <= ";
    case NSLayoutRelation::equal:
      return " = ";
    case NSLayoutRelation::greaterThanOrEqual:
      return " >= ";
  }
  return " ? ";
}

std::string nameOf(const UIViewRef& view) {
  if (!view) return "(gone)";
  if (!view->name().empty()) return view->name();
  return view->accessibilityLabel().value_or("view");
}

}  // namespace

NSLayoutConstraint::NSLayoutConstraint(Parts parts)
    : parts_(std::move(parts)), serial_(nextSerial()) {}

void NSLayoutConstraint::setConstant(double constant) {
  if (parts_.constant == constant) return;
  parts_.constant = constant;
  if (const auto owner = owner_.lock()) owner->setNeedsUpdateConstraints();
}

std::string NSLayoutConstraint::description() const {
  std::ostringstream text;
  text << nameOf(firstItem()) << '.' << nameOf(parts_.firstAttribute) << signOf(parts_.relation);
  if (parts_.secondAttribute != NSLayoutAttribute::notAnAttribute) {
    if (parts_.multiplier != 1) text << parts_.multiplier << " * ";
    text << nameOf(secondItem()) << '.' << nameOf(parts_.secondAttribute) << " + ";
  }
  text << parts_.constant;
  if (parts_.priority < kLayoutPriorityRequired) text << " @" << parts_.priority;
  return text.str();
}

}  // namespace kindora
