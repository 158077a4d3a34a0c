// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/LayoutPasses.h"

#include <utility>

#include "toolkit/view/LayoutEngine.h"
#include "toolkit/view/UIView.h"

namespace kindora {
namespace {

// Views that agree need two or three rounds. What has not settled by then never will.
constexpr int kMostRounds = 50;

}  // namespace

LayoutPasses::LayoutPasses(UIView& root) : root_(root) {}
LayoutPasses::~LayoutPasses() = default;

bool LayoutPasses::schedule() { return !std::exchange(isScheduled_, true) && !isRunning_; }

void LayoutPasses::run(const std::function<void()>& layOutMarkedViews) {
  if (isRunning_) return;
  const UIViewRef alive = root_.weak_from_this().lock();
  isRunning_ = true;
  if (!engine_) engine_ = std::make_unique<LayoutEngine>(root_);
  for (int round = 0; round < kMostRounds; ++round) {
    isScheduled_ = false;
    engine_->takeOver({.structure = std::exchange(structureChanged_, false),
                       .constants = std::exchange(constantsChanged_, false)});
    engine_->placeViews();
    layOutMarkedViews();
    if (!isScheduled_) break;
  }
  isScheduled_ = false;
  isRunning_ = false;
}

}  // namespace kindora
