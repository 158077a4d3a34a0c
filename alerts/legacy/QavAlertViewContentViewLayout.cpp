// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The part of an alert's content that has to do with its layout.
#include <algorithm>
#include <utility>

#include "alerts/helpers/QavAutoLayout.h"
#include "alerts/legacy/QavAlertViewColors.h"
#include "alerts/legacy/QavAlertViewContentView.h"
#include "alerts/legacy/VisualFormatConstraints.h"
#include "platform/FatalError.h"
#include "platform/services/ViewServices.h"

namespace kindora {
namespace {

// All in points.
constexpr double kAlertWidth = 270;
constexpr double kWindowMargin = 40;  // above and below together
constexpr double kPrimaryFieldHeight = 30;
constexpr double kSecondaryFieldHeight = 29;
constexpr double kFieldsTopSpacing = 20;
constexpr UIEdgeInsets kFieldsInsets{.left = 15, .right = -15};

double onePixel() { return 1 / viewServices().mainScreen->scale(); }

// With none of the constraints that it had.
void addAnew(UIView& superview, const UIViewRef& view) {
  view->removeFromSuperview();
  superview.addSubview(view);
}

constexpr UIRectEdge kSides = UIRectEdge::left | UIRectEdge::right;

}  // namespace

CGSize QavAlertViewContentView::maximumSize() const {
  if (maximumSize_) return *maximumSize_;
  return {kAlertWidth, viewServices().mainScreen->bounds().size.height - kWindowMargin};
}

void QavAlertViewContentView::setMaximumSize(CGSize size) {
  if (maximumSize_ == size) return;
  maximumSize_ = size;
  measuresChanged();
}

QavAlertViewElements QavAlertViewContentView::elements() const {
  return {.textFields = !textFields_.empty(),
          .customContent = !customContentView_->subviews().empty(),
          .buttons = numberOfButtons() > 0,
          .buttonsSideBySide = buttons_.areSideBySide()};
}

void QavAlertViewContentView::elementsChanged() {
  if (prepared_) prepareForShowing();
}

void QavAlertViewContentView::prepareForShowing() {
  prepared_ = true;
  fillTables();
  // What leaves takes its constraints along.
  const auto before = subviews();
  for (const auto& view : before) view->removeFromSuperview();
  addSubview(scrollView_);
  const QavAlertViewElements shown = elements();
  if (shown.textFields) addSubview(textFieldBackgroundView_);
  if (shown.customContent) addSubview(customContentView_);
  if (shown.buttons) {
    addSubview(otherButtonsTableView_);
    addSubview(suggestedButtonTableView_);
    addSubview(buttonTopSeparatorView_);
    if (shown.buttonsSideBySide) addSubview(buttonMiddleSeparatorView_);
  }
  hold(qav_alertFormat(shown));
  layOutLabels();
  if (shown.textFields) layOutTextFields();
  if (shown.customContent) qav_horizontallyCenterInSuperview(customContentView_);
  if (shown.buttons) layOutButtons();
  measuresChanged();
}

void QavAlertViewContentView::hold(std::string_view format) {
  VisualFormatViews views{{"scrollView", scrollView_},
                          {"titleLabel", titleLabel_},
                          {"messageLabel", messageLabel_},
                          {"textFieldBackgroundView", textFieldBackgroundView_},
                          {"textFieldSeparatorView", textFieldSeparatorView_},
                          {"customContentView", customContentView_},
                          {"buttonTopSeparatorView", buttonTopSeparatorView_},
                          {"otherButtonsTableView", otherButtonsTableView_},
                          {"suggestedButtonTableView", suggestedButtonTableView_}};
  if (!textFields_.empty()) {
    views.emplace("primaryTextField", textFields_.front());
    views.emplace("secondaryTextField", textFields_.back());
  }
  auto made = constraintsWithVisualFormat(format,
                                          {{"topSpace", appearance_.contentPadding.top},
                                           {"labelSpace", appearance_.labelSpacing},
                                           {"textFieldBackgroundViewTopSpacing", kFieldsTopSpacing},
                                           {"bottomSpacing", appearance_.contentPadding.bottom},
                                           {"primaryTextFieldHeight", kPrimaryFieldHeight},
                                           {"secondaryTextFieldHeight", kSecondaryFieldHeight}},
                                          views);
  if (const auto* error = std::get_if<VisualFormatError>(&made)) {
    fatalError("the format " + std::string(format) + " expects " + error->expected);
  }
  for (NSLayoutConstraintRef& constraint : std::get<0>(made)) addConstraint(std::move(constraint));
}

NSLayoutConstraintRef QavAlertViewContentView::pin(const UIViewRef& view,
                                                   NSLayoutAttribute attribute, double constant) {
  // Held here rather than by the view, so that it goes when the view does.
  auto constraint = std::make_shared<NSLayoutConstraint>(NSLayoutConstraint::Parts{
      .firstItem = view, .firstAttribute = attribute, .constant = constant});
  addConstraint(constraint);
  return constraint;
}

void QavAlertViewContentView::layOutLabels() {
  for (const auto& label : {titleLabel_, messageLabel_}) {
    addAnew(*scrollView_, label);
    qav_alignEdgesWithSuperview(
        label, kSides,
        {.left = appearance_.contentPadding.left, .right = -appearance_.contentPadding.right});
  }
  hold(qav_labelsFormat());
  qav_alignEdgesWithSuperview(scrollView_, kSides);
  scrollHeight_ = pin(scrollView_, NSLayoutAttribute::height, 0);
}

void QavAlertViewContentView::layOutTextFields() {
  qav_alignEdgesWithSuperview(textFieldBackgroundView_, kSides, kFieldsInsets);
  textFieldBackgroundView_->setBorder({qav_textFieldBackgroundViewColor(), onePixel()});
  const bool two = textFields_.size() > 1;
  std::vector<UIViewRef> inside(textFields_.begin(), textFields_.end());
  textFieldSeparatorView_->removeFromSuperview();
  if (two) inside.push_back(textFieldSeparatorView_);
  for (const auto& view : inside) {
    addAnew(*textFieldBackgroundView_, view);
    qav_alignEdgesWithSuperview(view, kSides);
  }
  hold(qav_textFieldsFormat(two));
  if (two) pin(textFieldSeparatorView_, NSLayoutAttribute::height, onePixel());
}

void QavAlertViewContentView::layOutButtons() {
  qav_alignEdgesWithSuperview(buttonTopSeparatorView_, kSides);
  pin(buttonTopSeparatorView_, NSLayoutAttribute::height, onePixel());
  pin(otherButtonsTableView_, NSLayoutAttribute::height, otherButtonsTableView_->heightOfRows());
  if (buttons_.areSideBySide()) {
    layOutButtonsSideBySide();
    return;
  }
  qav_alignEdgesWithSuperview(otherButtonsTableView_, kSides);
  qav_alignEdgesWithSuperview(suggestedButtonTableView_, kSides);
  pin(suggestedButtonTableView_, NSLayoutAttribute::height,
      suggestedButtonTableView_->heightOfRows());
}

void QavAlertViewContentView::layOutButtonsSideBySide() {
  qav_alignEdgesWithSuperview(otherButtonsTableView_, UIRectEdge::left);
  qav_alignEdgesWithSuperview(suggestedButtonTableView_, UIRectEdge::right);
  addConstraint(std::make_shared<NSLayoutConstraint>(
      NSLayoutConstraint::Parts{.firstItem = otherButtonsTableView_,
                                .firstAttribute = NSLayoutAttribute::width,
                                .secondItem = shared_from_this(),
                                .secondAttribute = NSLayoutAttribute::width,
                                .multiplier = 0.5}));
  qav_pinWidthToWidthOfView(suggestedButtonTableView_, otherButtonsTableView_);
  qav_pinHeightToHeightOfView(suggestedButtonTableView_, otherButtonsTableView_);
  qav_alignEdge(suggestedButtonTableView_, UIRectEdge::top, otherButtonsTableView_);
  qav_alignEdges(buttonMiddleSeparatorView_, UIRectEdge::top | UIRectEdge::bottom,
                 otherButtonsTableView_);
  qav_horizontallyCenterInSuperview(buttonMiddleSeparatorView_);
  pin(buttonMiddleSeparatorView_, NSLayoutAttribute::width, onePixel());
}

// --- Measures ---

double QavAlertViewContentView::heightOfFields() const {
  if (textFields_.empty()) return 0;
  const double first = kFieldsTopSpacing + kPrimaryFieldHeight;
  return textFields_.size() > 1 ? first + onePixel() + kSecondaryFieldHeight : first;
}

double QavAlertViewContentView::heightOfButtons() const {
  if (numberOfButtons() == 0) return 0;
  const double rows = buttons_.areSideBySide() ? 1 : numberOfButtons();
  return appearance_.contentPadding.bottom + onePixel() +
         rows * QavAlertViewButtonTable::kRowHeight;
}

double QavAlertViewContentView::heightOfLabels() const {
  const double texts = titleLabel_->intrinsicContentSize().height + appearance_.labelSpacing +
                       messageLabel_->intrinsicContentSize().height;
  const QavAlertViewElements shown = elements();
  const bool alone = !shown.textFields && !shown.customContent && !shown.buttons;
  // Elsewhere the padding below is the space above the buttons.
  return appearance_.contentPadding.top + texts + (alone ? appearance_.contentPadding.bottom : 0);
}

void QavAlertViewContentView::measuresChanged() {
  if (!prepared_) return;
  const CGSize maximum = maximumSize();
  if (!width_) width_ = qav_pinWidth(shared_from_this(), maximum.width);
  width_->setConstant(maximum.width);
  const UIEdgeInsets& padding = appearance_.contentPadding;
  // A width of 0 would not break lines at all.
  const double labelWidth = std::max(1.0, maximum.width - padding.left - padding.right);
  titleLabel_->setPreferredMaxLayoutWidth(labelWidth);
  messageLabel_->setPreferredMaxLayoutWidth(labelWidth);
  const double wanted = heightOfLabels();
  const double left = maximum.height - heightOfFields() - heightOfButtons();
  scrollHeight_->setConstant(std::clamp(left, 0.0, wanted));
  scrollView_->setContentSize({maximum.width, wanted});
}

}  // namespace kindora
