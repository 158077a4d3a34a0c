// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/legacy/VisualFormatConstraints.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

class VisualFormatConstraints : public testing::Test {
 protected:
  VisualFormatConstraints() {
    for (const auto& view : {a, b}) {
      view->setTranslatesAutoresizingMaskIntoConstraints(false);
      outside->addSubview(view);
    }
    outside->setFrame({{10, 20}, {300, 200}});
  }

  std::vector<NSLayoutConstraintRef> make(std::string_view format) {
    auto made = constraintsWithVisualFormat(format, {{"space", 12}}, {{"a", a}, {"b", b}});
    if (const auto* error = std::get_if<VisualFormatError>(&made)) {
      ADD_FAILURE() << format << ": expected " << error->expected;
      return {};
    }
    return std::get<0>(std::move(made));
  }

  VisualFormatError refusal(std::string_view format, const VisualFormatViews& views) {
    const auto made = constraintsWithVisualFormat(format, {}, views);
    const auto* error = std::get_if<VisualFormatError>(&made);
    return error != nullptr ? *error : VisualFormatError{0, "nothing at all"};
  }

  UIViewRef outside = std::make_shared<UIView>();
  UIViewRef a = std::make_shared<UIView>();
  UIViewRef b = std::make_shared<UIView>();
};

TEST_F(VisualFormatConstraints, NameTheViewsTheSuperviewAndThePriority) {
  const auto made = make("V:[a(>=30@500)]-space-|");
  ASSERT_EQ(made.size(), 2U);
  EXPECT_EQ(made[0]->firstItem(), a);
  EXPECT_EQ(made[0]->firstAttribute(), NSLayoutAttribute::height);
  EXPECT_EQ(made[0]->relation(), NSLayoutRelation::greaterThanOrEqual);
  EXPECT_EQ(made[0]->secondItem(), nullptr);
  EXPECT_EQ(made[0]->constant(), 30);
  EXPECT_EQ(made[0]->priority(), 500);
  EXPECT_EQ(made[1]->firstItem(), outside);
  EXPECT_EQ(made[1]->firstAttribute(), NSLayoutAttribute::bottom);
  EXPECT_EQ(made[1]->secondItem(), a);
  EXPECT_EQ(made[1]->secondAttribute(), NSLayoutAttribute::bottom);
  EXPECT_EQ(made[1]->constant(), 12);
  EXPECT_EQ(made[1]->priority(), kLayoutPriorityRequired);
  EXPECT_EQ(made[1]->owner(), nullptr) << "they are not yet held";
}

TEST_F(VisualFormatConstraints, LayViewsOut) {
  for (const char* format : {"V:|-5-[a(30)]-[b]-space-|", "|-space-[a]|", "|[b(==a)]"}) {
    for (const auto& constraint : make(format)) outside->addConstraint(constraint);
  }
  outside->layoutIfNeeded();
  EXPECT_EQ(a->frame(), (CGRect{{12, 5}, {288, 30}}));
  EXPECT_EQ(b->frame(), (CGRect{{0, 43}, {288, 145}}));
}

TEST_F(VisualFormatConstraints, AViewThatIsNotThereIsTold) {
  EXPECT_EQ(refusal("[a]-[c]", {{"a", a}}), (VisualFormatError{7, "a view named \"c\""}));
  EXPECT_EQ(refusal("[c(==a)]", {{"a", a}}), (VisualFormatError{8, "a view named \"c\""}));
  EXPECT_EQ(refusal("[a(==c)]", {{"a", a}}), (VisualFormatError{8, "a view named \"c\""}));
  EXPECT_EQ(refusal("[a]-[b]", {{"a", a}, {"b", nullptr}}),
            (VisualFormatError{7, "a view named \"b\""}));
}

TEST_F(VisualFormatConstraints, AnEdgeNeedsASuperview) {
  EXPECT_EQ(refusal("|[o]", {{"o", outside}}),
            (VisualFormatError{4, "a view that has a superview"}));
  EXPECT_EQ(refusal("[o]|", {{"o", outside}}),
            (VisualFormatError{4, "a view that has a superview"}));
}

TEST_F(VisualFormatConstraints, AFormatThatCannotBeReadTellsWhere) {
  EXPECT_EQ(refusal("[a", {{"a", a}}), (VisualFormatError{2, "\"(\" or \"]\""}));
}

}  // namespace
}  // namespace kindora
