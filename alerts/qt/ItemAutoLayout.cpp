// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "alerts/qt/ItemAutoLayout.h"

#include <QQmlEngine>

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

// What the function makes of the items' records; nothing when one is missing.
template <typename Make, typename... Items>
auto make(Make makeIt, Items*... items) {
  using Made = decltype(handle(makeIt(viewOfItem(*items)...)));
  if ((... || (items == nullptr))) {
    qWarning("QavAutoLayout: an item is missing");
    return Made{};
  }
  return handle(makeIt(viewOfItem(*items)...));
}

UIRectEdge edges(int bits) { return static_cast<UIRectEdge>(bits); }
UIOffset offsetOf(QPointF point) { return {point.x(), point.y()}; }
CGSize sizeOf(QSizeF size) { return {size.width(), size.height()}; }
UIEdgeInsets insetsOf(const QVariantMap& map) {
  const auto side = [&map](const char* name) { return map.value(QLatin1String(name)).toDouble(); };
  return {
      .top = side("top"), .left = side("left"), .bottom = side("bottom"), .right = side("right")};
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
  return static_cast<int>(kindora::qav_layoutAttributeFromRectEdge(edges(edge)));
}

// --- Edges ---

QVariantList ItemAutoLayout::qav_alignEdgesWithSuperview(QQuickItem* item, int bits,
                                                         const QVariantMap& insets) {
  return make(
      [&](const UIViewRef& v) {
        return kindora::qav_alignEdgesWithSuperview(v, edges(bits), insetsOf(insets));
      },
      item);
}

QVariantList ItemAutoLayout::qav_alignEdges(QQuickItem* item, int bits, QQuickItem* withView,
                                            const QVariantMap& insets) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_alignEdges(v, edges(bits), o, insetsOf(insets));
      },
      item, withView);
}

LayoutConstraint* ItemAutoLayout::qav_alignEdge(QQuickItem* item, int edge, QQuickItem* withView,
                                                double inset) {
  return make([&](const UIViewRef& v,
                  const UIViewRef& o) { return kindora::qav_alignEdge(v, edges(edge), o, inset); },
              item, withView);
}

LayoutConstraint* ItemAutoLayout::qav_alignEdge(QQuickItem* item, int edge, int withEdge,
                                                QQuickItem* ofView, double inset) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_alignEdge(v, edges(edge), edges(withEdge), o, inset);
      },
      item, ofView);
}

// --- Centres and baselines ---

QVariantList ItemAutoLayout::qav_alignCentersWithView(QQuickItem* item, QQuickItem* other,
                                                      QPointF offset) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_alignCentersWithView(v, o, offsetOf(offset));
      },
      item, other);
}

LayoutConstraint* ItemAutoLayout::qav_alignHorizontalCenterWithView(QQuickItem* item,
                                                                    QQuickItem* other,
                                                                    double offset) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_alignHorizontalCenterWithView(v, o, offset);
      },
      item, other);
}

LayoutConstraint* ItemAutoLayout::qav_alignVerticalCenterWithView(QQuickItem* item,
                                                                  QQuickItem* other,
                                                                  double offset) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_alignVerticalCenterWithView(v, o, offset);
      },
      item, other);
}

QVariantList ItemAutoLayout::qav_centerInSuperview(QQuickItem* item) {
  return make([&](const UIViewRef& v) { return kindora::qav_centerInSuperview(v); }, item);
}

QVariantList ItemAutoLayout::qav_centerInSuperviewWithOffset(QQuickItem* item, QPointF offset) {
  return make(
      [&](const UIViewRef& v) {
        return kindora::qav_centerInSuperviewWithOffset(v, offsetOf(offset));
      },
      item);
}

LayoutConstraint* ItemAutoLayout::qav_horizontallyCenterInSuperview(QQuickItem* item) {
  return make([&](const UIViewRef& v) { return kindora::qav_horizontallyCenterInSuperview(v); },
              item);
}

LayoutConstraint* ItemAutoLayout::qav_horizontallyCenterInSuperviewWithOffset(QQuickItem* item,
                                                                              double offset) {
  return make(
      [&](const UIViewRef& v) {
        return kindora::qav_horizontallyCenterInSuperviewWithOffset(v, offset);
      },
      item);
}

LayoutConstraint* ItemAutoLayout::qav_verticallyCenterInSuperview(QQuickItem* item) {
  return make([&](const UIViewRef& v) { return kindora::qav_verticallyCenterInSuperview(v); },
              item);
}

LayoutConstraint* ItemAutoLayout::qav_verticallyCenterInSuperviewWithOffset(QQuickItem* item,
                                                                            double offset) {
  return make(
      [&](const UIViewRef& v) {
        return kindora::qav_verticallyCenterInSuperviewWithOffset(v, offset);
      },
      item);
}

LayoutConstraint* ItemAutoLayout::qav_alignBaselineWithView(QQuickItem* item, QQuickItem* other,
                                                            double offset) {
  return make([&](const UIViewRef& v,
                  const UIViewRef& o) { return kindora::qav_alignBaselineWithView(v, o, offset); },
              item, other);
}

// --- Sizes ---

LayoutConstraint* ItemAutoLayout::qav_pinWidth(QQuickItem* item, double width) {
  return make([&](const UIViewRef& v) { return kindora::qav_pinWidth(v, width); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMinimumWidth(QQuickItem* item, double width) {
  return make([&](const UIViewRef& v) { return kindora::qav_setMinimumWidth(v, width); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumWidth(QQuickItem* item, double width) {
  return make([&](const UIViewRef& v) { return kindora::qav_setMaximumWidth(v, width); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumWidthToSuperviewWidth(QQuickItem* item) {
  return make([&](const UIViewRef& v) { return kindora::qav_setMaximumWidthToSuperviewWidth(v); },
              item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumWidthToSuperviewWidthWithOffset(QQuickItem* item,
                                                                                double offset) {
  return make(
      [&](const UIViewRef& v) {
        return kindora::qav_setMaximumWidthToSuperviewWidthWithOffset(v, offset);
      },
      item);
}

LayoutConstraint* ItemAutoLayout::qav_pinHeight(QQuickItem* item, double height) {
  return make([&](const UIViewRef& v) { return kindora::qav_pinHeight(v, height); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMinimumHeight(QQuickItem* item, double height) {
  return make([&](const UIViewRef& v) { return kindora::qav_setMinimumHeight(v, height); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumHeight(QQuickItem* item, double height) {
  return make([&](const UIViewRef& v) { return kindora::qav_setMaximumHeight(v, height); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumHeightToSuperviewHeight(QQuickItem* item) {
  return make([&](const UIViewRef& v) { return kindora::qav_setMaximumHeightToSuperviewHeight(v); },
              item);
}

LayoutConstraint* ItemAutoLayout::qav_setMaximumHeightToSuperviewHeightWithOffset(QQuickItem* item,
                                                                                  double offset) {
  return make(
      [&](const UIViewRef& v) {
        return kindora::qav_setMaximumHeightToSuperviewHeightWithOffset(v, offset);
      },
      item);
}

QVariantList ItemAutoLayout::qav_pinSize(QQuickItem* item, QSizeF size) {
  return make([&](const UIViewRef& v) { return kindora::qav_pinSize(v, sizeOf(size)); }, item);
}

LayoutConstraint* ItemAutoLayout::qav_pinWidthToWidthOfView(QQuickItem* item, QQuickItem* other,
                                                            double offset) {
  return make([&](const UIViewRef& v,
                  const UIViewRef& o) { return kindora::qav_pinWidthToWidthOfView(v, o, offset); },
              item, other);
}

LayoutConstraint* ItemAutoLayout::qav_pinHeightToHeightOfView(QQuickItem* item, QQuickItem* other,
                                                              double offset) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_pinHeightToHeightOfView(v, o, offset);
      },
      item, other);
}

QVariantList ItemAutoLayout::qav_pinSizeToSizeOfView(QQuickItem* item, QQuickItem* other,
                                                     QSizeF offset) {
  return make(
      [&](const UIViewRef& v, const UIViewRef& o) {
        return kindora::qav_pinSizeToSizeOfView(v, o, sizeOf(offset));
      },
      item, other);
}

// --- Spacing ---

LayoutConstraint* ItemAutoLayout::qav_pinHorizontalSpacing(QQuickItem* item, double spacing,
                                                           QQuickItem* toView) {
  return make([&](const UIViewRef& v,
                  const UIViewRef& o) { return kindora::qav_pinHorizontalSpacing(v, spacing, o); },
              item, toView);
}

LayoutConstraint* ItemAutoLayout::qav_pinVerticalSpacing(QQuickItem* item, double spacing,
                                                         QQuickItem* toView) {
  return make([&](const UIViewRef& v,
                  const UIViewRef& o) { return kindora::qav_pinVerticalSpacing(v, spacing, o); },
              item, toView);
}

QVariantList ItemAutoLayout::qav_pinSpacing(QQuickItem* item, QSizeF spacing, QQuickItem* toView) {
  return make([&](const UIViewRef& v,
                  const UIViewRef& o) { return kindora::qav_pinSpacing(v, sizeOf(spacing), o); },
              item, toView);
}

}  // namespace kindora
