// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import Kindora.Toolkit.Hosts

// The gallery's window.
PhoneWindow {
    title: "Kindora Gallery"
}
