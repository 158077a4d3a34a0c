// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/support/Goals.h"

namespace {

constexpr kindora::Goal kGoals[] = {
    {"Scratch/Segment", "Scratch/SegmentCairo", 1.0 / 4},
    {"Scratch/Segment", "Scratch/Floor", 2.5},
    {"Scratch/TouchSet", "Scratch/TouchSetQPainter", 1.0 / 12},
};

}  // namespace

int main(int argc, char** argv) { return kindora::runBenchmarks(argc, argv, kGoals); }
