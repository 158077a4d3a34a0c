// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ItemAutoLayout.h"

#include <QQmlEngine>
#include <type_traits>
#include <utility>

#include "alerts/qt/ItemView.h"

namespace kindora {
namespace {

LayoutConstraint* handle(const NSLayoutConstraintRef& constraint) {
  if (!constraint) return nullptr;
  auto* made = new LayoutConstraint(constraint);
  QQmlEngine::setObjectOwnership(made, QQmlEngine::JavaScriptOwnership);
  return made;
}

QVariantList handle(const NSLayoutConstraints& constraints) {
  QVariantList all;
  for (const NSLayoutConstraintRef& constraint : constraints) {
    all.push_back(QVariant::fromValue(handle(constraint)));
  }
  return all;
}

// QML says the helpers' own bits.
constexpr bool same(ItemAutoLayout::Edge shown, UIRectEdge meant) {
  return static_cast<unsigned>(shown) == static_cast<unsigned>(meant);
}
static_assert(same(ItemAutoLayout::None, UIRectEdge::none));
static_assert(same(ItemAutoLayout::Top, UIRectEdge::top));
static_assert(same(ItemAutoLayout::Left, UIRectEdge::left));
static_assert(same(ItemAutoLayout::Bottom, UIRectEdge::bottom));
static_assert(same(ItemAutoLayout::Right, UIRectEdge::right));
static_assert(same(ItemAutoLayout::All, UIRectEdge::all));

// What a helper takes for what QML gives.
UIViewRef taken(QQuickItem* item) { return viewOfItem(*item); }
double taken(double points) { return points; }
UIRectEdge taken(int bits) { return static_cast<UIRectEdge>(bits); }
UIOffset taken(QPointF point) { return {point.x(), point.y()}; }
CGSize taken(QSizeF size) { return {size.width(), size.height()}; }
UIEdgeInsets taken(const QVariantMap& map) {
  const auto side = [&map](const char* name) { return map.value(QLatin1String(name)).toDouble(); };
  return {
      .top = side("top"), .left = side("left"), .bottom = side("bottom"), .right = side("right")};
}

template <typename Given>
bool isMissing(const Given& given) {
  if constexpr (std::is_pointer_v<Given>) return given == nullptr;
  return false;
}

// What the helper makes of what QML gives; nothing when an item is missing.
template <typename Made, typename... Taken, typename... Given>
auto make(Made (*helper)(Taken...), const Given&... given) {
  if ((... || isMissing(given))) {
    qWarning("QavAutoLayout: an item is missing");
    return decltype(handle(std::declval<Made>())){};
  }
  return handle(helper(taken(given)...));
}

}  // namespace

ItemAutoLayout::ItemAutoLayout(QObject* parent) : QObject(parent) {}

QQuickItem* ItemAutoLayout::qav_commonAncestorWithView(QQuickItem* item, QQuickItem* other) const {
  if (item == nullptr || other == nullptr) return nullptr;
  const UIViewRef view = kindora::qav_commonAncestorWithView(viewOfItem(*item), viewOfItem(*other));
  const auto* found = dynamic_cast<const ItemView*>(view.get());
  return found != nullptr ? found->item() : nullptr;
}

int ItemAutoLayout::qav_layoutAttributeFromRectEdge(int edge) const {
  return static_cast<int>(kindora::qav_layoutAttributeFromRectEdge(taken(edge)));
}

// --- Edges ---

QVariantList ItemAutoLayout::qav_alignEdgesWithSuperview(QQuickItem* item, int bits,
                                                         const QVariantMap& insets) {
  return make(kindora::qav_alignEdgesWithSuperview, item, bits, insets);
}

QVariantList ItemAutoLayout::qav_alignEdges(QQuickItem* item, int bits, QQuickItem* withView,
                                            const QVariantMap& insets) {
  return make(kindora::qav_alignEdges, item, bits, withView, insets);
}

LayoutConstraint* ItemAutoLayout::qav_alignEdge(QQuickItem* item, int edge, QQuickItem* withView,
                                                double inset) {
  return qav_alignEdge(item, edge, edge, withView, inset);
}

LayoutConstraint* ItemAutoLayout::qav_alignEdge(QQuickItem* item, int edge, int withEdge,
                                                QQuickItem* ofView, double inset) {
  using AlignEdges =
      NSLayoutConstraintRef(const UIViewRef&, UIRectEdge, UIRectEdge, const UIViewRef&, double);
  return make(static_cast<AlignEdges*>(kindora::qav_alignEdge), item, edge, withEdge, ofView,
              inset);
}

// --- Centres and baselines ---

QVariantList ItemAutoLayout::qav_alignCentersWithView(QQuickItem* item, QQuickItem* other,
                                                      QPointF offset) {
  return make(kindora::qav_alignCentersWithView, item, other, offset);
}

LayoutConstraint* ItemAutoLayout::qav_alignHorizontalCenterWithView(QQuickItem* item,
                                                                    QQuickItem* other,
                                                                    double offset) {
  return make(kindora::qav_alignHorizontalCenterWithView, item, other, offset);
}

LayoutConstraint* ItemAutoLayout::qav_alignVerticalCenterWithView(QQuickItem* item,
                                                                  QQuickItem* other,
                                                                  double offset) {
  return make(kindora::qav_alignVerticalCenterWithView, item, other, offset);
}

QVariantList ItemAutoLayout::qav_centerInSuperview(QQuickItem* item) {
  return make(kindora::qav_centerInSuperview, item);
}

QVariantList ItemAutoLayout::qav_centerInSuperviewWithOffset(QQuickItem* item, QPointF offset) {
  return make(kindora::qav_centerInSuperviewWithOffset, item, offset);
}

LayoutConstraint* ItemAutoLayout::qav_horizontallyCenterInSuperview(QQuickItem* item) {
  return make(kindora::qav_horizontallyCenterInSuperview, item);
}

LayoutConstraint* ItemAutoLayout::qav_horizontallyCenterInSuperviewWithOffset(QQuickItem* item,
                                                                              double offset) {
  return make(kindora::qav_horizontallyCenterInSuperviewWithOffset, item, offset);
}

LayoutConstraint* ItemAutoLayout::qav_verticallyCenterInSuperview(QQuickItem* item) {
  return make(kindora::qav_verticallyCenterInSuperview, item);
}

LayoutConstraint* ItemAutoLayout::qav_verticallyCenterInSuperviewWithOffset(QQuickItem* item,
                                                                            double offset) {
  return make(kindora::qav_verticallyCenterInSuperviewWithOffset, item, offset);
}

LayoutConstraint* ItemAutoLayout::qav_alignBaselineWithView(QQuickItem* item, QQuickItem* other,
                                                            double offset) {
  return make(kindora::qav_alignBaselineWithView, item, other, offset);
}

// --- Sizes ---

LayoutConstraint* ItemAutoLayout::qav_pinWidth(QQuickItem* item, double width) {
  return make(kindora::qav_pinWidth, item, width);
}

LayoutConstraint* ItemAutoLayout::qav_setMinimumWidth(QQuickItem* item, double width) {
  return make(kindora::qav_setMinimumWidth, item, width);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumWidth(QQuickItem* item, double width) {
  return make(kindora::qav_setMaximumWidth, item, width);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumWidthToSuperviewWidth(QQuickItem* item) {
  return make(kindora::qav_setMaximumWidthToSuperviewWidth, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumWidthToSuperviewWidthWithOffset(QQuickItem* item,
                                                                                double offset) {
  return make(kindora::qav_setMaximumWidthToSuperviewWidthWithOffset, item, offset);
}

LayoutConstraint* ItemAutoLayout::qav_pinHeight(QQuickItem* item, double height) {
  return make(kindora::qav_pinHeight, item, height);
}

LayoutConstraint* ItemAutoLayout::qav_setMinimumHeight(QQuickItem* item, double height) {
  return make(kindora::qav_setMinimumHeight, item, height);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumHeight(QQuickItem* item, double height) {
  return make(kindora::qav_setMaximumHeight, item, height);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumHeightToSuperviewHeight(QQuickItem* item) {
  return make(kindora::qav_setMaximumHeightToSuperviewHeight, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumHeightToSuperviewHeightWithOffset(QQuickItem* item,
                                                                                  double offset) {
  return make(kindora::qav_setMaximumHeightToSuperviewHeightWithOffset, item, offset);
}

QVariantList ItemAutoLayout::qav_pinSize(QQuickItem* item, QSizeF size) {
  return make(kindora::qav_pinSize, item, size);
}

LayoutConstraint* ItemAutoLayout::qav_pinWidthToWidthOfView(QQuickItem* item, QQuickItem* other,
                                                            double offset) {
  return make(kindora::qav_pinWidthToWidthOfView, item, other, offset);
}

LayoutConstraint* ItemAutoLayout::qav_pinHeightToHeightOfView(QQuickItem* item, QQuickItem* other,
                                                              double offset) {
  return make(kindora::qav_pinHeightToHeightOfView, item, other, offset);
}

QVariantList ItemAutoLayout::qav_pinSizeToSizeOfView(QQuickItem* item, QQuickItem* other,
                                                     QSizeF offset) {
  return make(kindora::qav_pinSizeToSizeOfView, item, other, offset);
}

// --- Spacing ---

LayoutConstraint* ItemAutoLayout::qav_pinHorizontalSpacing(QQuickItem* item, double spacing,
                                                           QQuickItem* toView) {
  return make(kindora::qav_pinHorizontalSpacing, item, spacing, toView);
}

LayoutConstraint* ItemAutoLayout::qav_pinVerticalSpacing(QQuickItem* item, double spacing,
                                                         QQuickItem* toView) {
  return make(kindora::qav_pinVerticalSpacing, item, spacing, toView);
}

QVariantList ItemAutoLayout::qav_pinSpacing(QQuickItem* item, QSizeF spacing, QQuickItem* toView) {
  return make(kindora::qav_pinSpacing, item, spacing, toView);
}

}  // namespace kindora
