// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// What holds for any text, and for any row or column that can be written.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "alerts/legacy/VisualFormat.h"

namespace kindora {
namespace {

const VisualFormatMetrics kSpaceAndHigh{{"space", 12}, {"high", 750}};

// A piece of text and what it stands for.
struct Written {
  std::string text;
  std::vector<VisualFormatConstraint> constraints;
};

std::string randomName() {
  return "v" + *rc::gen::container<std::string>(rc::gen::elementOf(std::string("aZ_09")));
}

// "(>=12@750,4)" and its conditions, whose items are left open.
Written randomPredicates() {
  Written written{"(", {}};
  const int count = *rc::gen::inRange(1, 4);
  for (int i = 0; i < count; ++i) {
    VisualFormatConstraint constraint;
    const int relation = *rc::gen::inRange(-1, 2);
    constraint.relation = static_cast<NSLayoutRelation>(relation);
    if (i > 0) written.text += ',';
    written.text += relation < 0 ? "<=" : relation > 0 ? ">=" : *rc::gen::element("==", "");
    if (*rc::gen::arbitrary<bool>()) {
      constraint.constant = 12;
      written.text += "space";
    } else {
      const int quarters = *rc::gen::inRange(-4000, 4000);
      constraint.constant = quarters / 4.0;
      written.text += std::to_string(constraint.constant);
    }
    if (*rc::gen::arbitrary<bool>()) {
      constraint.priority = *rc::gen::inRange(0, 1001);
      written.text += '@' + std::to_string(static_cast<int>(constraint.priority));
    } else if (*rc::gen::arbitrary<bool>()) {
      constraint.priority = 750;
      written.text += "@high";
    }
    written.constraints.push_back(constraint);
  }
  written.text += ')';
  return written;
}

Written randomGap() {
  VisualFormatConstraint plain;
  switch (*rc::gen::inRange(0, 5)) {
    case 0:
      return {"", {plain}};
    case 1:
      plain.constant = kDefaultGap;
      return {"-", {plain}};
    case 2:
      plain.constant = 12;
      return {"-space-", {plain}};
    case 3:
      plain.constant = *rc::gen::inRange(0, 1000);
      return {'-' + std::to_string(static_cast<int>(plain.constant)) + '-', {plain}};
    default:
      Written written = randomPredicates();
      written.text = '-' + written.text + '-';
      return written;
  }
}

// A whole format with all that it stands for.
Written randomFormat() {
  using enum NSLayoutAttribute;
  const bool down = *rc::gen::arbitrary<bool>();
  Written format{down ? "V:" : *rc::gen::element("H:", ""), {}};
  std::string lastItem;
  NSLayoutAttribute lastEdge = notAnAttribute;
  const auto place = [&](const std::string& item, NSLayoutAttribute edge) {
    const Written gap = lastItem.empty() ? Written{} : randomGap();
    format.text += gap.text;
    for (VisualFormatConstraint constraint : gap.constraints) {
      constraint.firstItem = item;
      constraint.firstAttribute = edge;
      constraint.secondItem = lastItem;
      constraint.secondAttribute = lastEdge;
      format.constraints.push_back(constraint);
    }
  };
  if (*rc::gen::arbitrary<bool>()) {
    format.text += '|';
    lastItem = kSuperviewName;
    lastEdge = down ? top : left;
  }
  const int views = *rc::gen::inRange(1, 5);
  for (int i = 0; i < views; ++i) {
    const std::string name = randomName();
    place(name, down ? top : left);
    format.text += '[' + name;
    if (*rc::gen::arbitrary<bool>()) {
      const Written sizes = randomPredicates();
      format.text += sizes.text;
      for (VisualFormatConstraint constraint : sizes.constraints) {
        constraint.firstItem = name;
        constraint.firstAttribute = down ? height : width;
        format.constraints.push_back(constraint);
      }
    }
    format.text += ']';
    lastItem = name;
    lastEdge = down ? bottom : right;
  }
  if (*rc::gen::arbitrary<bool>()) {
    place(std::string(kSuperviewName), down ? bottom : right);
    format.text += '|';
  }
  return format;
}

RC_GTEST_PROP(VisualFormatProperty, WhatIsWrittenIsRead, ()) {
  const Written format = randomFormat();
  const auto read = parseVisualFormat(format.text, kSpaceAndHigh);
  RC_LOG(format.text);
  RC_ASSERT(read.index() == 0U);
  RC_ASSERT(std::get<0>(read) == format.constraints);
}

RC_GTEST_PROP(VisualFormatProperty, ChangedCharacterIsReadOrRefusedAtAPlaceInTheFormat, ()) {
  std::string text = randomFormat().text;
  const auto at = *rc::gen::inRange<std::size_t>(0, text.size());
  text[at] = *rc::gen::oneOf(rc::gen::elementOf(std::string("VH:|-[]()<>=@,.0a")),
                             rc::gen::arbitrary<char>());
  const auto read = parseVisualFormat(text, kSpaceAndHigh);
  const auto* error = std::get_if<VisualFormatError>(&read);
  if (error == nullptr) return;
  RC_ASSERT(error->position <= text.size());
  RC_ASSERT(!error->expected.empty());
}

RC_GTEST_PROP(VisualFormatProperty, WhatStandsBeforeTheErrorIsNotToBlame, ()) {
  const std::string text = randomFormat().text;
  const auto length = *rc::gen::inRange<std::size_t>(0, text.size());
  const auto read = parseVisualFormat(std::string_view(text).substr(0, length), kSpaceAndHigh);
  const auto* error = std::get_if<VisualFormatError>(&read);
  if (error == nullptr) return;
  // A format that was right but ends too early is wrong at its end, or at a name, a number or a
  // relation that has lost its own end.
  const std::string rest = text.substr(error->position, length - error->position);
  RC_ASSERT(rest.find_first_of("|[]()-,@", 1) == std::string::npos || rest.front() == '-');
}

}  // namespace
}  // namespace kindora
