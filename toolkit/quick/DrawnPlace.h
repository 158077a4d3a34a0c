// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRectF>
#include <optional>

#include "toolkit/quick/GroundItem.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// Where a view is drawn inside its superview. A view that does not move stands on whole device
/// pixels, of which there are `ratio` a point, and a line never vanishes; the record keeps its
/// numbers.
[[nodiscard]] QRectF drawnRect(const UIView& view, double ratio);

/// The nearest rounded rectangle that cuts off what lies in it, in the view's own space.
[[nodiscard]] std::optional<GroundItem::Cut> roundedCut(const UIView& view);

/// Whether something inside the view stands out of it, so that clipping would show.
[[nodiscard]] bool overflows(const UIView& view);

}  // namespace kindora
