// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "alerts/card/QavAlertAction.h"
#include "alerts/card/QavAlertControllerVisualStyle.h"
#include "alerts/card/QavCollectionReusableView.h"
#include "toolkit/view/UILabel.h"
#include "toolkit/view/UITapGestureRecognizer.h"

namespace kindora {

/// One button of an alert. While it is not enabled its title is grey and it takes no taps.
class QavAlertCollectionViewCell final : public QavCollectionReusableView {
 public:
  [[nodiscard]] static std::shared_ptr<QavAlertCollectionViewCell> make();

  /// Shows the action as it is now. It can be pressed once a recogniser is set.
  void updateWithAction(const QavAlertAction& action, const QavAlertControllerVisualStyle& style);

  [[nodiscard]] const std::shared_ptr<UILabel>& textLabel() const { return textLabel_; }
  /// Behind the title; shown while the button is pressed. Null before the first action.
  [[nodiscard]] const UIViewRef& highlightedBackgroundView() const {
    return highlightedBackgroundView_;
  }
  [[nodiscard]] const std::shared_ptr<UITapGestureRecognizer>& gestureRecognizer() const {
    return tapGestureRecognizer();
  }
  /// Takes the place of an earlier one. It is enabled exactly while the cell is.
  void setGestureRecognizer(const std::shared_ptr<UITapGestureRecognizer>& recognizer);

  [[nodiscard]] bool isEnabled() const { return enabled_; }
  void setEnabled(bool enabled);

  void setHighlighted(bool highlighted, bool animated) override;
  void prepareForReuse() override;

 private:
  QavAlertCollectionViewCell() = default;
  void setHighlightedBackgroundView(UIViewRef view);
  void updateHighlight();

  std::shared_ptr<UILabel> textLabel_ = std::make_shared<UILabel>();
  UIViewRef highlightedBackgroundView_;
  bool enabled_ = true;
};

}  // namespace kindora
