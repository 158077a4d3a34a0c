// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import Kindora.Platform

// The app's window.
PhoneWindow {
    title: "Kindora"
}
