// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kindora {

/// Makes the user's language of an English text.
using QavLocalizer = std::function<std::string(std::string_view english)>;

/// For the start of a program that is translated; none of this tree is. Takes effect for texts that
/// are asked for afterwards; an empty localizer leaves them in English, as at first. Main thread.
void installAlertLocalizer(QavLocalizer localizer);

[[nodiscard]] std::string qav_localizedString(std::string_view english);

}  // namespace kindora
