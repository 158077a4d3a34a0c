// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/Challenge.h"
#include "platform/qt/toolkit/UIViewController.h"

namespace kindora {

/// The second tab: the badges of completed and created challenges.
class BadgesViewController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")

 public:
  /// The challenge that another screen hands over to be passed on.
  [[nodiscard]] const ChallengeRef& challengeToPassOn() const { return challengeToPassOn_; }
  void setChallengeToPassOn(const ChallengeRef& challenge) { challengeToPassOn_ = challenge; }

 private:
  ChallengeRef challengeToPassOn_;
};

}  // namespace kindora
