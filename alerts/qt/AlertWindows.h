// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Has alert views shown in windows of this toolkit, above the window that is key when the first of
/// them is shown. Alert controllers and alert layers see to it themselves; a program that shows
/// alert views without them calls this at launch. Later calls change nothing.
void installAlertWindows();

}  // namespace kindora
