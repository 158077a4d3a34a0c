// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <utility>

#include "toolkit/view/UITextInput.h"

namespace kindora {

class UITextView;

/// Hears what happens in text views.
class UITextViewDelegate {
 public:
  virtual ~UITextViewDelegate() = default;
  /// The user has changed the text.
  virtual void textViewDidChange(UITextView& /*view*/) {}
};

/// Text of many lines that the user edits.
class UITextView final : public UITextInput {
 public:
  void setDelegate(std::weak_ptr<UITextViewDelegate> delegate) { delegate_ = std::move(delegate); }

  /// Points between the view's edge and its text, the same on every side.
  [[nodiscard]] double contentInset() const { return contentInset_; }
  void setContentInset(double points);

 protected:
  void didChange() override;

 private:
  std::weak_ptr<UITextViewDelegate> delegate_;
  double contentInset_ = 8;
};

}  // namespace kindora
