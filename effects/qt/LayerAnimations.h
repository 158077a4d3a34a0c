// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "effects/keyframes/CAKeyframeAnimation.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// Plays a copy of the animation on a view, on Qt's animation clock, in place of what plays there
/// under the same key. It acts on the property that its key path names, else the key: "opacity" (a
/// number), "position" (a point, of the centre) or "transform" (a matrix); values of another kind
/// and other names show nothing. While it plays, the property's own value does not show; nor after
/// its end when it stays and fills forwards.
///
/// The animation's delegate hears of its end exactly once: at the end, or unfinished when the
/// animation is replaced or removed, or the view goes.
void addAnimation(const UIViewRef& view, const CAKeyframeAnimation& animation,
                  std::string_view key);

/// Runs the closure, then the completion, once, as soon as no animation plays any more that the
/// closure has added: at its end, or when it was replaced, removed, or its view has gone. That is
/// before this returns if the closure adds none. Transactions may nest; an animation belongs to the
/// innermost.
void performInAnimationTransaction(const std::function<void()>& animations,
                                   std::function<void()> completion);

/// Has the animation that plays under the key go on along another path, as far along as it has
/// come: for a goal that moves. Does nothing where nothing plays.
void redirectAnimationForKey(const UIView& view, std::string_view key,
                             std::shared_ptr<UIBezierPath> path);

/// Takes away what plays, or stays, under the key.
void removeAnimationForKey(UIView& view, std::string_view key);

}  // namespace kindora
