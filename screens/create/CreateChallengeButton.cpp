// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/create/CreateChallengeButton.h"

#include "screens/SegueIdentifiers.h"

namespace kindora {

UIBarButtonItemRef createChallengeButton(UIViewController& screen) {
  return std::make_shared<UIBarButtonItem>(
      QStringLiteral("Create Challenge"), QStringLiteral("plus"),
      [&screen] { screen.performSegueWithIdentifier(kCreateChallenge); });
}

}  // namespace kindora
