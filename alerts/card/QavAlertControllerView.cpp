// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/card/QavAlertControllerView.h"

#include <algorithm>
#include <utility>

#include "alerts/card/QavAlertCollectionViewCell.h"
#include "alerts/card/QavAlertControllerDefaultVisualStyle.h"
#include "alerts/card/QavAlertControllerSeparatorView.h"
#include "alerts/helpers/QavParallax.h"

namespace kindora {
namespace {

void show(UILabel& label, const std::optional<NSAttributedString>& text, UIAccessibilityRole role) {
  label.setAttributedText(text);
  label.setAccessibility(text ? role : UIAccessibilityRole::none, label.text());
}

}  // namespace

// --- Making ---

QavAlertControllerView::QavAlertControllerView()
    : visualStyle_(std::make_shared<QavAlertControllerDefaultVisualStyle>()),
      visualEffectView_(UIVisualEffectView::withBlur(UIBlurEffectStyle::extraLight)),
      scrollView_(QavAlertControllerScrollView::withVisualStyle(visualStyle_)),
      collectionViewLayout_(
          std::make_shared<QavAlertControllerCollectionViewFlowLayout>(visualStyle_)),
      actionsCollectionView_(std::make_shared<QavActionsCollectionView>(collectionViewLayout_)) {}

std::shared_ptr<QavAlertControllerView> QavAlertControllerView::withTitle(
    const std::optional<NSAttributedString>& title,
    const std::optional<NSAttributedString>& message) {
  std::shared_ptr<QavAlertControllerView> card(new QavAlertControllerView);
  card->build();
  card->setTitle(title);
  card->setMessage(message);
  return card;
}

void QavAlertControllerView::build() {
  for (const UIViewRef& view : {shared_from_this(), UIViewRef(visualEffectView_),
                                UIViewRef(scrollView_), UIViewRef(actionsCollectionView_)}) {
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
  }
  const auto self = std::static_pointer_cast<QavAlertControllerView>(shared_from_this());
  QavActionsCollectionView& buttons = *actionsCollectionView_;
  buttons.setBackgroundColor(UIColor::clearColor());
  buttons.setDelegate(self);
  buttons.setDataSource(self);
  buttons.registerCell(kQavAlertControllerCellReuseIdentifier, QavAlertCollectionViewCell::make);
  for (const char* kind : {kQavAlertControllerDecorationKindHorizontalSeparator,
                           kQavAlertControllerDecorationKindVerticalSeparator}) {
    buttons.registerDecorationView(
        kind, [] { return std::make_shared<QavAlertControllerSeparatorView>(); });
  }
}

// --- What it shows ---

void QavAlertControllerView::setDelegate(std::weak_ptr<QavAlertControllerViewDelegate> delegate) {
  delegate_ = std::move(delegate);
}

const std::optional<NSAttributedString>& QavAlertControllerView::title() const {
  return scrollView_->titleLabel()->attributedText();
}

void QavAlertControllerView::setTitle(const std::optional<NSAttributedString>& title) {
  show(*scrollView_->titleLabel(), title, UIAccessibilityRole::header);
  announce();
}

const std::optional<NSAttributedString>& QavAlertControllerView::message() const {
  return scrollView_->messageLabel()->attributedText();
}

void QavAlertControllerView::setMessage(const std::optional<NSAttributedString>& message) {
  show(*scrollView_->messageLabel(), message, UIAccessibilityRole::staticText);
  announce();
}

void QavAlertControllerView::announce() {
  const auto& text = title() ? title() : message();
  visualEffectView_->contentView()->setAccessibility(
      UIAccessibilityRole::alert, text ? std::optional(text->string()) : std::nullopt);
}

void QavAlertControllerView::setActions(std::vector<QavAlertActionRef> actions) {
  actions_ = std::move(actions);
  actionsCollectionView_->reloadData();
}

void QavAlertControllerView::setActionLayout(QavAlertActionLayout layout) {
  actionLayout_ = layout;
  collectionViewLayout_->setScrollDirection(wantsOneRow()
                                                ? UICollectionViewScrollDirection::horizontal
                                                : UICollectionViewScrollDirection::vertical);
  actionsCollectionView_->reloadData();
}

void QavAlertControllerView::setVisualStyle(VisualStyleRef style) {
  visualStyle_ = std::move(style);
  scrollView_->setVisualStyle(visualStyle_);
  collectionViewLayout_->setVisualStyle(visualStyle_);
  actionsCollectionView_->reloadData();
}

void QavAlertControllerView::setContentView(std::shared_ptr<QavIntrinsicallySizedView> view) {
  contentView_ = std::move(view);
}

void QavAlertControllerView::showTextFieldView(std::shared_ptr<QavAlertTextFieldTableView> view) {
  scrollView_->setTextFieldView(std::move(view));
}

// --- Putting it together ---

void QavAlertControllerView::prepareForDisplay() {
  observeActions();
  setVisualStyle(visualStyle_);
  qav_pinWidth(visualEffectView_, visualStyle_->width());
  addScrollView();
  addActionsCollectionView(addContentView());
  addVisualEffectView();
}

void QavAlertControllerView::observeActions() {
  for (const QavAlertActionRef& action : actions_) {
    enabledSubscriptions_.push_back(
        action->observeEnabled([this](const QavAlertAction& which) { actionDidChange(which); }));
  }
}

void QavAlertControllerView::actionDidChange(const QavAlertAction& action) {
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    if (actions_[i].get() != &action) continue;
    const auto cell = actionsCollectionView_->cellForItemAtIndexPath({0, static_cast<int>(i)});
    if (cell) static_cast<QavAlertCollectionViewCell&>(*cell).setEnabled(action.isEnabled());
  }
}

void QavAlertControllerView::addScrollView() {
  visualEffectView_->contentView()->addSubview(scrollView_);
  scrollView_->layoutIfNeeded();
  qav_alignEdgesWithSuperview(scrollView_, UIRectEdge::top | UIRectEdge::left | UIRectEdge::right);
  maximumHeightConstraint_ = qav_setMaximumHeight(scrollView_, maximumScrollViewHeight());
}

UIViewRef QavAlertControllerView::addContentView() {
  if (!contentView_ || contentView_->subviews().empty()) return scrollView_;
  visualEffectView_->contentView()->addSubview(contentView_);
  qav_alignEdges(contentView_, UIRectEdge::left | UIRectEdge::right, scrollView_);
  qav_alignEdge(contentView_, UIRectEdge::top, UIRectEdge::bottom, scrollView_);
  return contentView_;
}

void QavAlertControllerView::addActionsCollectionView(const UIViewRef& elementAbove) {
  visualEffectView_->contentView()->addSubview(actionsCollectionView_);
  qav_alignEdge(actionsCollectionView_, UIRectEdge::top, UIRectEdge::bottom, elementAbove);
  qav_alignEdgesWithSuperview(actionsCollectionView_,
                              UIRectEdge::left | UIRectEdge::bottom | UIRectEdge::right);
  qav_pinHeight(actionsCollectionView_, actionsCollectionViewHeight());
}

void QavAlertControllerView::addVisualEffectView() {
  addSubview(visualEffectView_);
  qav_centerInSuperview(visualEffectView_);
  visualEffectView_->setCornerRadius(visualStyle_->cornerRadius());
  visualEffectView_->setClipsToBounds(true);
  qav_alignEdgesWithSuperview(shared_from_this(), UIRectEdge::all);
  qav_addParallax(*this, visualStyle_->parallax());
}

void QavAlertControllerView::layoutSubviews() {
  UIView::layoutSubviews();
  if (maximumHeightConstraint_) maximumHeightConstraint_->setConstant(maximumScrollViewHeight());
}

// --- Measures ---

bool QavAlertControllerView::wantsOneRow() const {
  return actionLayout_ == QavAlertActionLayout::horizontal ||
         (actionLayout_ == QavAlertActionLayout::automatic && actions_.size() == 2);
}

bool QavAlertControllerView::isHorizontal() const {
  return collectionViewLayout_->scrollDirection() == UICollectionViewScrollDirection::horizontal;
}

double QavAlertControllerView::maximumScrollViewHeight() const {
  const auto holder = superview();
  const UIEdgeInsets margins = visualStyle_->margins();
  double height = (holder ? holder->frame().size.height : 0) - margins.top - margins.bottom;
  if (!actions_.empty()) {
    const double rows = isHorizontal() ? 1 : static_cast<double>(actions_.size());
    height -= visualStyle_->actionViewHeight() * rows;
  }
  return std::max(0.0, height);
}

double QavAlertControllerView::actionsCollectionViewHeight() const {
  const double rows = wantsOneRow() ? 1 : static_cast<double>(actions_.size());
  return visualStyle_->actionViewHeight() * rows;
}

// --- Buttons ---

int QavAlertControllerView::collectionViewNumberOfItemsInSection(int /*section*/) {
  return static_cast<int>(actions_.size());
}

std::shared_ptr<QavCollectionReusableView>
QavAlertControllerView::collectionViewCellForItemAtIndexPath(IndexPath path) {
  const auto cell = std::static_pointer_cast<QavAlertCollectionViewCell>(
      actionsCollectionView_->dequeueReusableCell(kQavAlertControllerCellReuseIdentifier));
  cell->updateWithAction(*actions_[static_cast<std::size_t>(path.row)], *visualStyle_);
  auto recognizer = std::make_shared<UITapGestureRecognizer>();
  const auto self =
      std::weak_ptr(std::static_pointer_cast<QavAlertControllerView>(shared_from_this()));
  recognizer->action = [self](UIView& view) {
    if (const auto card = self.lock()) card->actionViewTapped(view);
  };
  recognizer->pressedChanged = [](UIView& view, bool pressed) {
    static_cast<QavAlertCollectionViewCell&>(view).setHighlighted(pressed, true);
  };
  cell->setGestureRecognizer(recognizer);
  return cell;
}

void QavAlertControllerView::actionViewTapped(const UIView& cell) {
  const auto path = actionsCollectionView_->indexPathForCell(cell);
  const auto delegate = delegate_.lock();
  if (!path || !delegate) return;
  const QavAlertActionRef action = actions_[static_cast<std::size_t>(path->row)];
  delegate->alertControllerViewDidPerformAction(*this, action);
}

CGSize QavAlertControllerView::collectionViewLayoutSizeForItemAtIndexPath(
    const UICollectionView& collectionView, IndexPath /*path*/) {
  const double width = collectionView.bounds().size.width;
  const double height = visualStyle_->actionViewHeight();
  if (!isHorizontal()) return {width, height};
  const double share = width / static_cast<double>(actions_.size());
  return {std::max(share, visualStyle_->minimumActionViewWidth()), height};
}

bool QavAlertControllerView::collectionViewLayoutHasUniformItemSizeInSection(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return true;
}

double QavAlertControllerView::collectionViewLayoutMinimumInteritemSpacingForSectionAtIndex(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return 0;
}

double QavAlertControllerView::collectionViewLayoutMinimumLineSpacingForSectionAtIndex(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return 0;
}

UIEdgeInsets QavAlertControllerView::collectionViewLayoutInsetForSectionAtIndex(
    const UICollectionView& /*collectionView*/, int /*section*/) {
  return {};
}

}  // namespace kindora
