// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UITextView.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

class TextViewDelegate final : public UITextViewDelegate {
 public:
  void textViewDidChange(UITextView& view) override { last = view.text(); }
  std::string last;
};

TEST(UITextView, TellsItsDelegateOfTheUsersEdits) {
  const auto view = std::make_shared<UITextView>();
  const auto delegate = std::make_shared<TextViewDelegate>();
  view->setDelegate(delegate);
  view->setText("Hello");
  EXPECT_EQ(delegate->last, "");
  view->replaceRange({5, 0}, "\nyou");
  EXPECT_EQ(delegate->last, "Hello\nyou");
}

TEST(UITextView, ADelegateThatHasGoneIsNotTold) {
  const auto view = std::make_shared<UITextView>();
  view->setDelegate(std::make_shared<TextViewDelegate>());
  EXPECT_TRUE(view->replaceRange({0, 0}, "a"));
  EXPECT_EQ(view->text(), "a");
}

TEST(UITextView, KeepsItsInset) {
  const auto view = std::make_shared<UITextView>();
  int changes = 0;
  const auto subscription = view->observe([&] { ++changes; });
  view->setContentInset(0);
  view->setContentInset(0);
  EXPECT_EQ(view->contentInset(), 0);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace kindora
