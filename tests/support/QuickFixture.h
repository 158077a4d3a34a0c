// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <vector>

#include "platform/UIColor.h"
#include "platform/UIImage.h"
#include "toolkit/view/OutletOwner.h"

namespace kindora {

inline constexpr Rgba8 kRed{255, 0, 0, 255};
inline constexpr Rgba8 kGreen{0, 255, 0, 255};
inline constexpr Rgba8 kBlue{0, 0, 255, 255};
inline constexpr UIColor kRedColor{1, 0, 0, 1};
inline const QColor kRedPixel(255, 0, 0);

/// A picture of one colour.
inline UIImageRef plainPicture(std::size_t width, std::size_t height, Rgba8 color) {
  const std::vector<Rgba8> pixels(width * height, color);
  return UIImage::imageWithRaster(Raster(width, height, pixels));
}

/// Somebody with a root view named "view", for items to draw.
class Owner final : public QObject, public OutletOwner {
 public:
  Owner() {
    root->setName("view");
    root->setPlacer(UIViewPlacer::page);
  }
  [[nodiscard]] UIViewRef outlet(std::string_view name) override {
    return root->viewWithName(name);
  }
  /// Makes an outlet inside the root view.
  template <typename View>
  std::shared_ptr<View> make(std::string_view name) {
    std::weak_ptr<View> outlet;
    return connectOutlet(outlet, name, *root);
  }

  const UIViewRef root = std::make_shared<UIView>();
};

/// A white window of 100 x 100 pixels, of which tests look at the pixels.
class QuickFixture : public ::testing::Test {
 protected:
  QuickFixture() {
    window.resize(100, 100);
    window.setColor(Qt::white);
  }

  template <typename Item>
  std::unique_ptr<Item> place(const QRectF& rect) {
    auto item = std::make_unique<Item>(window.contentItem());
    item->setPosition(rect.topLeft());
    item->setSize(rect.size());
    return item;
  }
  [[nodiscard]] QImage drawn() { return window.grabWindow(); }
  [[nodiscard]] QColor pixel(int x, int y) { return drawn().pixelColor(x, y); }

  QQuickWindow window;
};

}  // namespace kindora
