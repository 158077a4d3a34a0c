// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora {

/// Whether the multimedia module and a backend that can be loaded are there. Without a backend the
/// module ends the process, so nothing may touch it before this has answered true; the backend that
/// was found is then the one that it will use. Nothing is loaded before the first call.
[[nodiscard]] bool cameraPartsAreInstalled();

}  // namespace kindora
