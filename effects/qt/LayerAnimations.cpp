// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/qt/LayerAnimations.h"

#include <algorithm>
#include <string>
#include <utility>

#include "effects/keyframes/KeyframePlayback.h"
#include "toolkit/controllers/UIViewAnimation.h"

namespace kindora {
namespace {

constexpr double kLongest = 1e6;  // seconds; what never ends is on its way for so long

// Ends with the last animation that belongs to it.
class Transaction final {
 public:
  explicit Transaction(std::function<void()> completion) : completion_(std::move(completion)) {}
  ~Transaction() {
    if (completion_) completion_();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

 private:
  std::function<void()> completion_;
};

std::shared_ptr<Transaction>& currentTransaction() {
  static std::shared_ptr<Transaction> current;  // main thread only
  return current;
}

class Playing final : public UIViewLayerAnimation {
 public:
  Playing(const UIViewRef& view, std::shared_ptr<CAKeyframeAnimation> animation,
          std::string_view key)
      : view_(view),
        animation_(std::move(animation)),
        key_(key),
        property_(animation_->keyPath().value_or(key_)),
        playback_(*animation_) {}

  ~Playing() override {
    show({});
    tellDelegate(false);
  }
  Playing(const Playing&) = delete;
  Playing& operator=(const Playing&) = delete;

  void start() {
    showAt(0);
    const double length = std::min(playback_.length(), kLongest);
    clock_ = ProgressAnimation(
        {.duration = length, .curve = UIViewAnimationCurve::linear},
        [this, length](double fraction) { showAt(fraction * length); }, [this] { finish(); });
  }

  void redirect(std::shared_ptr<UIBezierPath> path) {
    animation_->setPath(std::move(path));
    playback_ = KeyframePlayback(*animation_);
    showAt(elapsed_);
  }

 private:
  void showAt(double elapsed) {
    elapsed_ = elapsed;
    show(playback_.valueAt(elapsed));
  }

  void show(const NSValue& value) {
    const UIViewRef view = view_.lock();
    if (!view) return;
    UIViewKeyframeValues values = view->keyframeValues();
    if (property_ == "opacity") {
      values.opacity = value.isNumber() ? std::optional(value.doubleValue()) : std::nullopt;
    } else if (property_ == "position") {
      values.position =
          value.objCType() == kCGPointEncoding ? std::optional(value.CGPointValue()) : std::nullopt;
    } else if (property_ == "transform") {
      values.transform = value.objCType() == kCATransform3DEncoding
                             ? std::optional(value.CATransform3DValue())
                             : std::nullopt;
    }
    view->setKeyframeValues(values);
  }

  void finish() {
    const UIViewRef view = view_.lock();
    // Keeps this alive, should the view let go of it here.
    const std::shared_ptr<UIViewLayerAnimation> self = view ? view->layerAnimation(key_) : nullptr;
    if (self.get() == this && animation_->isRemovedOnCompletion()) {
      view->setLayerAnimation(key_, nullptr);
      show({});
    }
    tellDelegate(true);
  }

  void tellDelegate(bool finished) {
    if (std::exchange(told_, true)) return;
    if (const auto delegate = animation_->delegate()) {
      delegate->animationDidStop(*animation_, finished);
    }
    transaction_.reset();
  }

  std::weak_ptr<UIView> view_;
  std::shared_ptr<CAKeyframeAnimation> animation_;
  std::string key_;
  std::string property_;
  KeyframePlayback playback_;
  double elapsed_ = 0;  // seconds
  ProgressAnimation clock_;
  std::shared_ptr<Transaction> transaction_ = currentTransaction();
  bool told_ = false;
};

}  // namespace

void addAnimation(const UIViewRef& view, const CAKeyframeAnimation& animation,
                  std::string_view key) {
  const auto playing = std::make_shared<Playing>(view, animation.copy(), key);
  view->setLayerAnimation(key, playing);
  playing->start();
}

void redirectAnimationForKey(const UIView& view, std::string_view key,
                             std::shared_ptr<UIBezierPath> path) {
  const auto playing = std::dynamic_pointer_cast<Playing>(view.layerAnimation(key));
  if (playing) playing->redirect(std::move(path));
}

void performInAnimationTransaction(const std::function<void()>& animations,
                                   std::function<void()> completion) {
  auto transaction = std::make_shared<Transaction>(std::move(completion));
  auto outer = std::exchange(currentTransaction(), transaction);
  animations();
  currentTransaction() = std::move(outer);
}

void removeAnimationForKey(UIView& view, std::string_view key) {
  view.setLayerAnimation(key, nullptr);
}

}  // namespace kindora
