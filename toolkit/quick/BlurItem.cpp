// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/quick/BlurItem.h"

#include <QFile>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <algorithm>

#include "toolkit/controllers/Colors.h"
#include "toolkit/quick/DrawnPlace.h"
#include "toolkit/view/Palette.h"
#include "toolkit/view/UIVisualEffectView.h"

namespace kindora {
namespace {

constexpr double kSameEdge = 0.1;  // points

bool hasEffects(const QObject& item) {
  const QQmlEngine* engine = qmlEngine(&item);
  if (engine == nullptr) return false;
  const QStringList paths = engine->importPathList();
  return std::ranges::any_of(paths, [](QString path) {
    if (path.startsWith(QStringLiteral("qrc:"))) path.remove(0, 3);
    return QFile::exists(path + QStringLiteral("/Qt5Compat/GraphicalEffects/qmldir"));
  });
}

}  // namespace

BlurItem::BlurItem(QQuickItem* parent) : FaceItem(parent) {}

void BlurItem::itemChange(ItemChange change, const ItemChangeData& data) {
  FaceItem::itemChange(change, data);
  if (change == ItemSceneChange || change == ItemVisibleHasChanged) watch();
}

// Only while the panel is on the screen: then each frame asks where it is, and no frame is drawn
// for that.
void BlurItem::watch() {
  disconnect(frames_);
  disconnect(start_);
  if (window() != nullptr && isVisible()) {
    frames_ = connect(window(), &QQuickWindow::afterAnimating, this, &BlurItem::look);
    start_ = connect(window(), &QQuickWindow::sceneGraphInitialized, this, &BlurItem::look,
                     Qt::QueuedConnection);
  }
  look();
}

bool BlurItem::canBlur() const {
  if (window() == nullptr || !isVisible()) return false;
  const QSGRendererInterface* renderer = window()->rendererInterface();
  return QSGRendererInterface::isApiRhiBased(renderer->graphicsApi()) &&
         renderer->graphicsApi() != QSGRendererInterface::Null && hasEffects(*this);
}

// At every level from the panel to the window: what is drawn before the branch with the panel.
QList<QQuickItem*> BlurItem::itemsBehind() const {
  QList<QQuickItem*> found;
  const QQuickItem* branch = this;
  for (QQuickItem* up = parentItem(); up != nullptr; up = up->parentItem()) {
    QList<QQuickItem*> siblings = up->childItems();
    std::ranges::stable_sort(siblings, {}, &QQuickItem::z);
    QList<QQuickItem*> lower;
    for (QQuickItem* each : siblings) {
      if (each == branch) break;
      if (each->isVisible() && each->width() > 0 && each->height() > 0) lower.push_back(each);
    }
    found = lower + found;
    branch = up;
  }
  return found;
}

void BlurItem::look() {
  const bool blurs = canBlur();
  QList<QPointer<QQuickItem>> behind;
  QList<QRectF> places;
  if (blurs) {
    for (QQuickItem* item : itemsBehind()) {
      behind.push_back(item);
      places.push_back(mapRectToItem(item, boundingRect()));
    }
  }
  const bool sameBackdrop = blurs == blurs_ && behind == behind_;
  const bool samePlaces = places == places_;
  blurs_ = blurs;
  behind_ = behind;
  places_ = places;
  if (!samePlaces) emit placesChanged();
  if (!sameBackdrop) {
    emit backdropChanged();
    emit toneChanged();
  }
}

QVariantList BlurItem::behind() const {
  QVariantList list;
  for (const auto& item : behind_) list.push_back(QVariant::fromValue(item.data()));
  return list;
}

QVariantList BlurItem::places() const {
  QVariantList list;
  for (const QRectF& place : places_) list.push_back(place);
  return list;
}

void BlurItem::viewDidChange() {
  FaceItem::viewDidChange();
  emit toneChanged();
}

QColor BlurItem::tone() const {
  const auto* panel = dynamic_cast<const UIVisualEffectView*>(view().get());
  const bool dark = panel != nullptr && panel->style() == UIBlurEffectStyle::dark;
  const bool light = panel != nullptr && panel->style() == UIBlurEffectStyle::light;
  const UIColor& color = (dark ? theme::kDark : theme::palette()).raised;
  return toQColor(color.colorWithAlphaComponent(!blurs_ ? 0.94 : dark ? 0.7 : light ? 0.6 : 0.8));
}

QColor BlurItem::windowColor() const {
  return window() != nullptr ? window()->color() : QColor(Qt::white);
}

double BlurItem::visibleRadius() const {
  const auto cut = view() ? roundedCut(*view()) : std::nullopt;
  if (!cut) return cornerRadius();
  // Not the item's size, which is rounded to whole pixels.
  const CGSize own = view()->presentation().frame.size;
  const QRectF bounds(0, 0, own.width, own.height);
  const bool fills = (cut->rect.topLeft() - bounds.topLeft()).manhattanLength() < kSameEdge &&
                     (cut->rect.bottomRight() - bounds.bottomRight()).manhattanLength() < kSameEdge;
  return fills ? std::max(cornerRadius(), cut->radius) : cornerRadius();
}

}  // namespace kindora
