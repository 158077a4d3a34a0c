// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/qt/toolkit/UIViewController.h"

namespace kindora {

/// The second tab: the badges of completed and created challenges.
class BadgesViewController : public kindora::UIViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("controllers come from the storyboard")
};

}  // namespace kindora
