// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/CreateChallengeButton.h"

#include "screens/shared/ImageNames.h"
#include "screens/shared/SegueIdentifiers.h"

namespace kindora {

UIBarButtonItemRef createChallengeButton(UIViewController& screen) {
  return std::make_shared<UIBarButtonItem>(
      UIBarButtonItem::tr("Create Challenge"), QString::fromLatin1(kPlusImage),
      [&screen] { screen.performSegueWithIdentifier(kCreateChallenge); });
}

}  // namespace kindora
