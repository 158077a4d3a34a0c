// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/inprogress/MedalFlight.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

#include "platform/FatalError.h"
#include "platform/services/Services.h"
#include "toolkit/view/UIControl.h"

namespace kindora {

CGRect frameForTabInTabBar(const UIView& tabBar, int index) {
  std::vector<CGRect> frames;
  for (const auto& view : tabBar.subviews()) {
    if (dynamic_cast<const UIControl*>(view.get()) != nullptr) frames.push_back(view->frame());
  }
  if (frames.empty()) {
    services().console->printLine("Oh no");
    return {};
  }
  std::ranges::stable_sort(frames, {}, [](const CGRect& frame) { return frame.origin.x; });
  if (index < 0 || static_cast<std::size_t>(index) >= frames.size()) {
    fatalError("there is no tab " + std::to_string(index));
  }
  return frames[static_cast<std::size_t>(index)];
}

CGPoint medalDestination(const CGRect& tabFrame) {
  return {tabFrame.origin.x + tabFrame.size.width * 0.5, tabFrame.origin.y + tabFrame.size.height};
}

std::shared_ptr<UIBezierPath> bezierPathForFlyFromPoint(CGPoint from, CGPoint to,
                                                        double peakHeight) {
  auto path = std::make_shared<UIBezierPath>();
  path->moveToPoint(from);
  path->addQuadCurveToPoint(to, {from.x + (to.x - from.x) * 0.5, peakHeight});
  return path;
}

std::shared_ptr<CAKeyframeAnimation> animationForFlyFromPoint(CGPoint from, CGPoint to,
                                                              double peakHeight) {
  auto animation = std::make_shared<CAKeyframeAnimation>();
  animation->setPath(bezierPathForFlyFromPoint(from, to, peakHeight));
  animation->setFillMode(CAMediaTimingFillMode::forwards);
  animation->setRemovedOnCompletion(false);
  animation->setDuration(1.0);
  animation->setRepeatCount(1);
  animation->setCalculationMode(CAAnimationCalculationMode::cubic);
  animation->setTimingFunction(CAMediaTimingFunction::easeIn());
  return animation;
}

std::string raisedBadgeValue(const std::optional<std::string_view>& value) {
  std::string_view digits = value.value_or("");
  // from_chars knows no plus sign.
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
  std::int64_t number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [parsed, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || parsed != end) return "1";
  // Unsigned, where the largest number has a next one.
  return number < 0 ? std::to_string(number + 1)
                    : std::to_string(static_cast<std::uint64_t>(number) + 1);
}

}  // namespace kindora
