// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "toolkit/quick/FaceItem.h"

namespace kindora {

/// Makes an item of this module's QML type of that name, a FaceItem, which shows the view and fills
/// the parent. The parent's QML engine makes it; where there is none, one that all such parts
/// share.
[[nodiscard]] std::unique_ptr<FaceItem> makeRecordPart(const QString& type, const UIViewRef& view,
                                                       QQuickItem& parent);

}  // namespace kindora
