// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Every flow by every hand. KINDORA_HANDS_SIZE, as "320x480", is the window's size in points.
#include <gtest/gtest.h>

#include <QByteArray>
#include <QSize>
#include <iostream>
#include <optional>
#include <string>
#include <tuple>

#include "tests/hands/Flow.h"
#include "tests/hands/KnownFailures.h"

namespace kindora {
namespace {

QSize askedSize() {
  const QByteArray text = qgetenv("KINDORA_HANDS_SIZE");
  const qsizetype cross = text.indexOf('x');
  if (cross < 0) return {390, 844};
  return {text.left(cross).toInt(), text.mid(cross + 1).toInt()};
}

// Why the hand could not go on; none when it came to the end.
std::optional<std::string> play(const Flow& flow, HandKind kind) {
  Program program(flow.launch, askedSize());
  const auto hand = makeHand(kind, program);
  try {
    flow.play(*hand);
  } catch (const CannotGoOn& failure) {
    return failure.what();
  }
  return std::nullopt;
}

class PlayedFlows : public ::testing::TestWithParam<std::tuple<Flow, HandKind>> {};

TEST_P(PlayedFlows, ComesToTheEnd) {
  const auto& [flow, kind] = GetParam();
  const std::optional<std::string> failure = play(flow, kind);
  if (const auto known = knownFailure(flow.name, kind)) {
    EXPECT_TRUE(failure) << "mended: " << *known << "; take it out of KnownFailures.cpp";
    std::cout << "known: " << *known << "\n" << failure.value_or("") << "\n";
  } else {
    EXPECT_FALSE(failure) << failure.value_or("");
  }
}

std::string nameOfPlay(const ::testing::TestParamInfo<std::tuple<Flow, HandKind>>& played) {
  return std::string(std::get<Flow>(played.param).name) + "_" +
         nameOf(std::get<HandKind>(played.param));
}

INSTANTIATE_TEST_SUITE_P(Flows, PlayedFlows,
                         ::testing::Combine(::testing::ValuesIn(allFlows()),
                                            ::testing::Values(HandKind::finger, HandKind::keys,
                                                              HandKind::assistive,
                                                              HandKind::inputMethod)),
                         nameOfPlay);

}  // namespace
}  // namespace kindora
