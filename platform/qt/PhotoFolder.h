// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <vector>

#include "platform/services/PhotoService.h"

namespace kindora {

/// The JPEG and PNG files, by content, in a folder and all folders in it, newest first; files of
/// the same time by name. Hidden ones and symbolic links to folders are left out. Any thread.
[[nodiscard]] std::vector<PhotoFile> photosBelow(const QString& folder);

/// The folders in a folder by name, then its pictures as above. Any thread.
[[nodiscard]] std::vector<PhotoFile> foldersAndPhotosIn(const QString& folder);

}  // namespace kindora
