// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/Hand.h"

#include <algorithm>

#include "tests/hands/AssistiveHand.h"
#include "tests/hands/FingerHand.h"
#include "tests/hands/InputMethodHand.h"
#include "tests/hands/KeysHand.h"

namespace kindora {
namespace {

constexpr int kPatience = 400;  // frames, longer than any ceremony's step
constexpr int kRest = 4;        // frames

// The last of the best, since what stands last lies on top.
Thing best(const std::vector<Thing>& all, const std::function<int(const Thing&)>& worth) {
  Thing found;
  int highest = 0;
  for (const Thing& thing : all) {
    const int value = worth(thing);
    if (value == 0 || value < highest) continue;
    highest = value;
    found = thing;
  }
  return found;
}

}  // namespace

bool Hand::waits(const std::function<bool()>& condition) {
  for (int i = 0; i < kPatience; ++i) {
    if (condition()) return true;
    program_.frame();
  }
  return false;
}

Thing Hand::find(const std::string& name) {
  return best(things(), [&](const Thing& thing) {
    if (!thing.isCalled(name)) return 0;
    const int kind = thing.isPressable() || thing.isField() ? 2 : 0;
    return 1 + kind + (thing.name == name ? 1 : 0) + (makesOut(thing) ? 4 : 0);
  });
}

Thing Hand::findField(const std::string& name) {
  return best(things(),
              [&](const Thing& thing) { return thing.isField() && thing.isCalled(name) ? 1 : 0; });
}

void Hand::giveUp(const std::string& what) {
  throw CannotGoOn(what + "; there is\n" + described(things()));
}

Thing Hand::sees(const std::string& name) {
  Thing thing;
  int still = 0;
  const bool seen = waits([&] {
    const QRectF before = thing.rect;
    thing = find(name);
    const bool there = thing.item && makesOut(thing);
    still = there && thing.rect == before ? still + 1 : 0;
    return still >= kRest;
  });
  if (!seen) giveUp("\"" + name + "\" is not seen");
  return thing;
}

bool Hand::canSee(const std::string& name) {
  const std::vector<Thing> all = things();
  return std::ranges::any_of(
      all, [&](const Thing& thing) { return thing.isCalled(name) && makesOut(thing); });
}

void Hand::seesNoMore(const std::string& name) {
  if (!waits([&] { return !canSee(name); })) giveUp("\"" + name + "\" is still seen");
}

std::vector<std::string> Hand::pressableNames() {
  std::vector<Thing> all = things();
  std::erase_if(all, [&](const Thing& thing) {
    return thing.name.empty() || !thing.isPressable() || !makesOut(thing);
  });
  std::ranges::stable_sort(all, {}, [](const Thing& thing) { return thing.rect.y(); });
  std::vector<std::string> names;
  for (const Thing& thing : all) names.push_back(thing.name);
  return names;
}

Thing Hand::fieldCalled(const std::string& name) {
  waits([&] { return findField(name).item != nullptr; });
  const Thing thing = findField(name);
  if (!thing.item) giveUp("there is no field \"" + name + "\"");
  return thing;
}

std::string Hand::textOf(const std::string& field) {
  QAccessibleInterface* interface = fieldCalled(field).interface();
  if (QAccessibleTextInterface* text = interface->textInterface()) {
    return text->text(0, text->characterCount()).toStdString();
  }
  return interface->text(QAccessible::Value).toStdString();
}

void Hand::bringIntoSight(const std::string& name) {
  program_.rest();
  waits([&] { return find(name).item != nullptr; });
  if (const Thing there = find(name); !there.item || !makesOut(there)) scrollTo(name);
  program_.rest();
}

Thing Hand::reads(const std::string& name) {
  bringIntoSight(name);
  return sees(name);
}

void Hand::press(const std::string& name) {
  bringIntoSight(name);
  pressInReach(sees(name));
  program_.rest();
}

const char* nameOf(HandKind kind) {
  switch (kind) {
    case HandKind::finger:
      return "finger";
    case HandKind::keys:
      return "keys";
    case HandKind::assistive:
      return "assistive";
    case HandKind::inputMethod:
      return "inputMethod";
  }
  return "";
}

std::unique_ptr<Hand> makeHand(HandKind kind, Program& program) {
  switch (kind) {
    case HandKind::finger:
      return std::make_unique<FingerHand>(program);
    case HandKind::keys:
      return std::make_unique<KeysHand>(program);
    case HandKind::assistive:
      return std::make_unique<AssistiveHand>(program);
    case HandKind::inputMethod:
      return std::make_unique<InputMethodHand>(program);
  }
  return nullptr;
}

}  // namespace kindora
