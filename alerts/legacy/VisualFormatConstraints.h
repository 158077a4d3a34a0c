// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "alerts/legacy/VisualFormat.h"
#include "toolkit/view/UIView.h"

namespace kindora {

/// Views by the names under which a format speaks of them.
using VisualFormatViews = std::map<std::string, UIViewRef, std::less<>>;

/// The constraints that the format describes, in its order, not yet held by any view. The superview
/// is that of the view next to its edge. A name without a view, and an edge next to a view without
/// superview, is an error at the format's end.
[[nodiscard]] std::variant<std::vector<NSLayoutConstraintRef>, VisualFormatError>
constraintsWithVisualFormat(std::string_view format, const VisualFormatMetrics& metrics,
                            const VisualFormatViews& views);

}  // namespace kindora
