// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UIViewAnimationBlock.h"

#include "platform/FatalError.h"
#include "toolkit/view/UIViewAnimatable.h"

namespace kindora {
namespace {

UIViewAnimationBlock* running = nullptr;  // main thread only

}  // namespace

UIViewAnimationBlock::UIViewAnimationBlock(const std::function<void()>& animations) {
  if (running != nullptr) fatalError("animation blocks do not nest");
  running = this;
  animations();
  running = nullptr;
  for (Track& track : tracks_) {
    if (const auto view = track.view.lock()) {
      track.to = view->state();
      track.revision = view->stateRevision();
    }
  }
}

UIViewAnimationBlock* UIViewAnimationBlock::current() { return running; }

void UIViewAnimationBlock::willChange(const std::shared_ptr<UIViewAnimatable>& view) {
  if (known_.insert(view).second) tracks_.push_back({view, view->presentation(), {}, 0});
}

void UIViewAnimationBlock::show(double fraction) const {
  for (const Track& track : tracks_) {
    const auto view = track.view.lock();
    // A state that was set since belongs to a later change.
    if (!view || view->stateRevision() != track.revision) continue;
    UIViewState shown = fraction == 1 ? track.to : interpolated(track.from, track.to, fraction);
    // A storyboard may lay the view out anew meanwhile.
    if (track.from.frame == track.to.frame) shown.frame = view->state().frame;
    view->setPresentation(shown);
  }
}

}  // namespace kindora
