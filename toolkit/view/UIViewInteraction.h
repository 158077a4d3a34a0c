// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace kindora {

struct UITapGestureRecognizer;

/// What the user may do with a view.
class UIViewInteraction {
 public:
  [[nodiscard]] bool isUserInteractionEnabled() const { return userInteractionEnabled_; }
  void setUserInteractionEnabled(bool enabled);

  /// Null takes it away. A view has at most one, the last given.
  void setTapGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer);
  [[nodiscard]] const std::shared_ptr<UITapGestureRecognizer>& tapGestureRecognizer() const {
    return tapGestureRecognizer_;
  }

 protected:
  UIViewInteraction() = default;
  ~UIViewInteraction() = default;

 private:
  virtual void changed() = 0;

  bool userInteractionEnabled_ = true;
  std::shared_ptr<UITapGestureRecognizer> tapGestureRecognizer_;
};

}  // namespace kindora
