// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora::layout {

// By how much a value may miss what a constraint asks of it and still meet it.
inline constexpr double kTolerance = 1e-8;

// A coefficient, or an amount of weight, that rounding left where none is meant.
inline constexpr double kTiny = 1e-9;

// A sum of coefficients that cancel each other, but for rounding.
inline constexpr double kNearZero = 1e-8;

}  // namespace kindora::layout
