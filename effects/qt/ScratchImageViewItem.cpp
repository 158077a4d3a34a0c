// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/qt/ScratchImageViewItem.h"

#include <QImage>
#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <cmath>

#include "effects/scratch/ScratchPath.h"

namespace kindora {
namespace {

constexpr double kPathStep = 12;      // points from one touch of scratchAway to the next
constexpr double kPathSeconds = 1.8;  // for the whole cover
constexpr int kMouse = -1;            // stands for the mouse among the fingers' ids

CGPoint toPoint(QPointF point) { return {point.x(), point.y()}; }

// A tile of the cover, as a node that owns its texture.
class CoverNode final : public QSGNode {
 public:
  std::vector<QSGImageNode*> tiles;
};

// How much of a pixel lies inside the rounded rectangle, by the distance of its centre from the
// edge.
double coverage(double x, double y, double width, double height, double radius) {
  const double dx = std::max({radius - x, x - (width - radius), 0.0});
  const double dy = std::max({radius - y, y - (height - radius), 0.0});
  if (dx == 0 || dy == 0) return 1;
  return std::clamp(radius - std::hypot(dx, dy) + 0.5, 0.0, 1.0);
}

}  // namespace

ScratchImageViewItem::ScratchImageViewItem(QQuickItem* parent) : ViewItem(parent) {
  setFlag(ItemHasContents);
  setAcceptedMouseButtons(Qt::LeftButton);
  setAcceptTouchEvents(true);
}

void ScratchImageViewItem::setRadius(double radius) {
  if (radius_ == radius) return;
  radius_ = radius;
  shown_ = {};
  emit radiusChanged();
  update();
}

JxScratchImageView* ScratchImageViewItem::scratchView() const {
  return dynamic_cast<JxScratchImageView*>(view().get());
}

void ScratchImageViewItem::viewDidChange() {
  ViewItem::viewDidChange();
  update();
}

void ScratchImageViewItem::geometryChange(const QRectF& now, const QRectF& before) {
  ViewItem::geometryChange(now, before);
  update();
}

// --- Drawing ---

QImage ScratchImageViewItem::tileImage(std::size_t column, std::size_t row) const {
  constexpr std::size_t side = Raster::kTileSide;
  const std::size_t left = column * side;
  const std::size_t top = row * side;
  const std::size_t tileWidth = std::min(side, shown_.width() - left);
  const std::size_t tileHeight = std::min(side, shown_.height() - top);
  const Raster::Tile& tile = shown_.tile(column, row);
  QImage image(static_cast<int>(tileWidth), static_cast<int>(tileHeight),
               QImage::Format_RGBA8888_Premultiplied);
  for (std::size_t y = 0; y < tileHeight; ++y) {
    std::copy_n(tile.data() + y * side, tileWidth,
                reinterpret_cast<Rgba8*>(image.scanLine(static_cast<int>(y))));
  }
  const auto width = static_cast<double>(shown_.width());
  const auto height = static_cast<double>(shown_.height());
  const double radius = radius_ * width / std::max(1.0, this->width());
  const bool inCorner =
      (static_cast<double>(left) < radius || static_cast<double>(left + side) > width - radius) &&
      (static_cast<double>(top) < radius || static_cast<double>(top + side) > height - radius);
  if (!inCorner) return image;
  for (std::size_t y = 0; y < tileHeight; ++y) {
    auto* line = reinterpret_cast<Rgba8*>(image.scanLine(static_cast<int>(y)));
    for (std::size_t x = 0; x < tileWidth; ++x) {
      const double inside = coverage(static_cast<double>(left + x) + 0.5,
                                     static_cast<double>(top + y) + 0.5, width, height, radius);
      const auto scaled = [inside](std::uint8_t value) {
        return static_cast<std::uint8_t>(std::lround(value * inside));
      };
      line[x] = {scaled(line[x].red), scaled(line[x].green), scaled(line[x].blue),
                 scaled(line[x].alpha)};
    }
  }
  return image;
}

QSGNode* ScratchImageViewItem::updatePaintNode(QSGNode* old, UpdatePaintNodeData*) {
  const JxScratchImageView* source = scratchView();
  if (source == nullptr || !source->image() || width() <= 0 || height() <= 0) {
    delete old;
    shown_ = {};
    return nullptr;
  }
  const Raster& raster = source->image()->raster();
  auto* cover = static_cast<CoverNode*>(old);
  const bool rebuild = cover == nullptr || raster.width() != shown_.width() ||
                       raster.height() != shown_.height() || size() != shownSize_;
  const Raster before = rebuild ? Raster() : shown_;
  shown_ = raster;
  shownSize_ = size();
  if (rebuild) {
    delete cover;
    cover = new CoverNode;
  }
  const double scaleX = width() / static_cast<double>(raster.width());
  const double scaleY = height() / static_cast<double>(raster.height());
  for (std::size_t row = 0; row < raster.tileRows(); ++row) {
    for (std::size_t column = 0; column < raster.tileColumns(); ++column) {
      if (!rebuild && raster.sharesTile(before, column, row)) continue;
      const std::size_t place = row * raster.tileColumns() + column;
      if (rebuild) {
        QSGImageNode* node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        cover->appendChildNode(node);
        cover->tiles.push_back(node);
      }
      const QImage image = tileImage(column, row);
      cover->tiles[place]->setTexture(window()->createTextureFromImage(image));
      constexpr auto side = static_cast<double>(Raster::kTileSide);
      cover->tiles[place]->setRect(static_cast<double>(column) * side * scaleX,
                                   static_cast<double>(row) * side * scaleY, image.width() * scaleX,
                                   image.height() * scaleY);
    }
  }
  return cover;
}

// --- Scratching by itself ---

void ScratchImageViewItem::scratchAway() {
  const JxScratchImageView* target = scratchView();
  if (target == nullptr || !path_.empty() || width() <= 0) return;
  const double pixels = target->image() ? target->image()->pixelSize().width : width();
  const double radius = static_cast<double>(target->radius()) * width() / pixels;
  for (const auto& line : scratchPath({width(), height()}, radius, kPathStep)) {
    for (std::size_t i = 0; i < line.size(); ++i) {
      const bool first = i == 0;
      path_.push_back({first ? UITouchPhase::began : UITouchPhase::moved, line[i],
                       first ? line[i] : line[i - 1]});
    }
  }
  followed_ = 0;
  pathClock_ = ProgressAnimation(
      {.duration = kPathSeconds, .curve = UIViewAnimationCurve::linear},
      [this](double done) {
        followPath(static_cast<std::size_t>(done * static_cast<double>(path_.size())));
      },
      [this] { path_.clear(); });
}

void ScratchImageViewItem::stopScratchingAway() {
  pathClock_ = {};
  path_.clear();
}

void ScratchImageViewItem::followPath(std::size_t points) {
  JxScratchImageView* target = scratchView();
  for (; target != nullptr && followed_ < points; ++followed_) {
    const UITouch& touch = path_[followed_];
    touch.phase == UITouchPhase::began ? target->touchesBegan({touch})
                                       : target->touchesMoved({touch});
  }
}

// --- Fingers ---

void ScratchImageViewItem::touchEvent(QTouchEvent* event) {
  JxScratchImageView* target = scratchView();
  if (target == nullptr) return ViewItem::touchEvent(event);
  UITouches began;
  UITouches moved;
  for (const QEventPoint& point : event->points()) {
    const QPointF here = point.position();
    switch (point.state()) {
      case QEventPoint::Pressed:
        began.push_back({UITouchPhase::began, toPoint(here), toPoint(here)});
        break;
      case QEventPoint::Updated:
        moved.push_back(
            {UITouchPhase::moved, toPoint(here), toPoint(previous_.value(point.id(), here))});
        break;
      default:
        break;
    }
    if (point.state() == QEventPoint::Released) {
      previous_.remove(point.id());
    } else {
      previous_[point.id()] = here;
    }
  }
  setKeepTouchGrab(true);
  event->accept();
  if (!began.empty()) target->touchesBegan(began);
  if (!moved.empty()) target->touchesMoved(moved);
}

void ScratchImageViewItem::mousePressEvent(QMouseEvent* event) {
  JxScratchImageView* target = scratchView();
  if (target == nullptr) return ViewItem::mousePressEvent(event);
  setKeepMouseGrab(true);
  const QPointF here = event->position();
  previous_[kMouse] = here;
  target->touchesBegan({{UITouchPhase::began, toPoint(here), toPoint(here)}});
}

void ScratchImageViewItem::mouseMoveEvent(QMouseEvent* event) {
  JxScratchImageView* target = scratchView();
  if (target == nullptr) return ViewItem::mouseMoveEvent(event);
  const QPointF here = event->position();
  const QPointF before = previous_.value(kMouse, here);
  previous_[kMouse] = here;
  target->touchesMoved({{UITouchPhase::moved, toPoint(here), toPoint(before)}});
}

}  // namespace kindora
