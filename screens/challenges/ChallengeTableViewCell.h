// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "toolkit/controllers/UITableViewCell.h"
#include "toolkit/view/UIImageView.h"
#include "toolkit/view/UILabel.h"

namespace kindora {

/// A challenge's row: a round picture in a shadowed frame, onto which it sinks when pressed, and
/// two lines of text.
class ChallengeTableViewCell : public kindora::UITableViewCell {
  Q_OBJECT

 public:
  std::weak_ptr<UIImageView> profileImageView;  ///< its superview is the picture's frame
  std::weak_ptr<UILabel> challengeLabel;
  std::weak_ptr<UILabel> senderLabel;

  /// A new cell with its outlets connected.
  [[nodiscard]] static std::shared_ptr<ChallengeTableViewCell> fromPrototype();

  [[nodiscard]] const UIImageRef& profileImage() const { return profileImage_; }
  void setProfileImage(const UIImageRef& image);
  /// An absent text clears its label.
  void setMainText(const std::optional<std::string>& text);
  void setSmallText(const std::optional<std::string>& text);

  void awakeFromNib() override;
  void setHighlighted(bool highlighted, bool animated) override;

 private:
  [[nodiscard]] UIViewRef pictureFrame() const;

  UIImageRef profileImage_;
};

}  // namespace kindora
