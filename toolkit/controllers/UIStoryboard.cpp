// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/UIStoryboard.h"

#include <algorithm>
#include <utility>

#include "platform/FatalError.h"

namespace kindora {

UIStoryboard::UIStoryboard(std::vector<UIStoryboardScene> scenes) : scenes_(std::move(scenes)) {}

UIViewControllerRef UIStoryboard::instantiateViewController(std::string_view identifier) const {
  const auto scene = std::find_if(scenes_.begin(), scenes_.end(), [&](const auto& candidate) {
    return candidate.identifier == identifier;
  });
  if (scene == scenes_.end()) {
    fatalError("the storyboard has no scene \"" + std::string(identifier) + "\"");
  }
  UIViewControllerRef controller = scene->make();
  controller->setScene(*this, *scene);
  return controller;
}

}  // namespace kindora
