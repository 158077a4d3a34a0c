// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/fakes/FakeBundle.h"

#include <utility>

namespace kindora {

UIImageRef FakeBundle::imageNamed(std::string_view name) {
  const auto known = images_.find(name);
  if (known != images_.end()) return known->second;
  if (!inventsImages_) return nullptr;
  return images_.emplace(name, UIImage::imageWithRaster(Raster(2, 2))).first->second;
}

void FakeBundle::setImage(std::string_view name, UIImageRef image) {
  images_.insert_or_assign(std::string(name), std::move(image));
}

}  // namespace kindora
