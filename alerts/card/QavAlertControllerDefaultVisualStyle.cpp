// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"

#include "platform/services/ViewServices.h"

namespace kindora {
namespace {

double onePixel() { return 1 / viewServices().mainScreen->scale(); }

}  // namespace

UIViewRef QavAlertControllerDefaultVisualStyle::actionViewHighlightBackgroundView() const {
  auto view = std::make_shared<UIView>();
  view->setBackgroundColor(UIColor::colorWithWhite(0.8, 0.7));
  return view;
}

double QavAlertControllerDefaultVisualStyle::actionViewSeparatorThickness() const {
  return onePixel();
}

UIColor QavAlertControllerDefaultVisualStyle::textColorForAction(
    const QavAlertAction& action) const {
  return action.style() == QavAlertActionStyle::destructive ? UIColor::redColor()
                                                            : UIView().tintColor();
}

UIFont QavAlertControllerDefaultVisualStyle::fontForAction(const QavAlertAction& action) const {
  constexpr double kSize = 17;
  return action.style() == QavAlertActionStyle::cancel ? UIFont::boldSystemFontOfSize(kSize)
                                                       : UIFont::systemFontOfSize(kSize);
}

double QavAlertControllerDefaultVisualStyle::textFieldBorderWidth() const { return onePixel(); }

}  // namespace kindora
