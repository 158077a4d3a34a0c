// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/UILabel.h"

#include "platform/services/ViewServices.h"

namespace kindora {

template <typename Value>
void UILabel::assign(Value& field, const Value& value) {
  if (field == value) return;
  field = value;
  invalidateIntrinsicContentSize();
  changed();
}

void UILabel::setText(const std::optional<std::string>& text) {
  if (text_ == text && !attributedText_) return;
  attributedText_.reset();
  text_ = text;
  invalidateIntrinsicContentSize();
  changed();
}

void UILabel::setAttributedText(const std::optional<NSAttributedString>& text) {
  if (attributedText_ == text && text) return;
  attributedText_ = text;
  text_ = text ? std::optional(text->string()) : std::nullopt;
  invalidateIntrinsicContentSize();
  changed();
}

void UILabel::setTextColor(const UIColor& color) { assign(textColor_, std::optional(color)); }
void UILabel::setFont(const UIFont& font) { assign(font_, std::optional(font)); }
void UILabel::setTextAlignment(NSTextAlignment alignment) {
  assign(alignment_, std::optional(alignment));
}
void UILabel::setEnabled(bool enabled) { assign(enabled_, enabled); }
void UILabel::setNumberOfLines(int lines) { assign(numberOfLines_, lines); }
void UILabel::setPreferredMaxLayoutWidth(double points) {
  assign(preferredMaxLayoutWidth_, points);
}

NSAttributedString UILabel::shownText() const {
  return attributedText_ ? *attributedText_ : NSAttributedString(text_.value_or(""));
}

UIFont UILabel::shownFont() const { return font_.value_or(UIFont::systemFontOfSize(17)); }

TextExtent UILabel::extent() const {
  if (text_.value_or("").empty()) return {};
  return viewServices().text->measure(shownText(), shownFont(), preferredMaxLayoutWidth_,
                                      numberOfLines_);
}

CGSize UILabel::intrinsicContentSize() const { return extent().size; }

double UILabel::firstBaselineFromTop() const { return extent().firstBaseline; }

double UILabel::lastBaselineFromBottom() const {
  const TextExtent all = extent();
  return all.size.height - all.lastBaseline;
}

}  // namespace kindora
