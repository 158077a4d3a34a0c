// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/controllers/UINavigationController.h"
#include "toolkit/controllers/UIStoryboard.h"

namespace kindora {

/// The table of the gallery's pages and of the ways between them.
[[nodiscard]] const UIStoryboard& galleryStoryboard();

/// The window's root: the list of demonstrations in a navigation controller.
[[nodiscard]] std::shared_ptr<UINavigationController> makeGalleryNavigationController();

}  // namespace kindora
