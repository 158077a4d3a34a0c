// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The whole program of the page.
#include "examples/docs/layout.md.3"
