// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace kindora::layout {

// By how much a value may miss what a constraint asks of it and still meet it, and the same as a
// share of the largest constant held.
inline constexpr double kTolerance = 1e-8;
inline constexpr double kRelativeTolerance = 1e-12;

// An amount of weight that rounding left where none is meant.
inline constexpr double kTiny = 1e-9;

// A sum of coefficients that cancel each other, but for rounding, in what callers give.
inline constexpr double kNearZero = 1e-8;

// The same within the tableau: as a share of what was added, and whatever was added.
inline constexpr double kCancelled = 1e-11;
inline constexpr double kVanishing = 1e-13;

// The least coefficient that an exchange divides by: as a share of the largest in its row, and in
// a row that may hold nothing but what rounding left.
inline constexpr double kLeastPivot = 1e-7;
inline constexpr double kLeastCoefficient = 1e-9;
// No row is known to hold coefficients so large that this is too little of them.
inline constexpr double kSurePivot = 1e-2;

// Where a row is solved for any of several variables, those with at least this share of the largest
// coefficient are as good as another.
inline constexpr double kGoodPivot = 0.1;
// The same where it is followed by others without end.
inline constexpr double kDefinablePivot = 0.5;

// By how much the rows may miss the constraints that they were made from, as a share of the
// numbers that go into it, before they are made anew.
inline constexpr double kDrift = 1e-11;

}  // namespace kindora::layout
