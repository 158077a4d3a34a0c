// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/scratch/JxMatrix.h"

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace kindora {
namespace {

TEST(JxMatrix, StartsWithZeros) {
  const auto matrix = JxMatrix::initWithMaxX(4, 3);
  EXPECT_EQ(matrix->max(), (JxMatrix::Max{4, 3}));
  for (std::size_t y = 0; y < 3; ++y) {
    for (std::size_t x = 0; x < 4; ++x) EXPECT_EQ(matrix->valueForCoordinates(x, y), 0);
  }
}

TEST(JxMatrix, TakesItsSizeAsAPairToo) {
  const auto matrix = JxMatrix::initWithMax({.x = 4, .y = 3});
  EXPECT_EQ(matrix->max(), (JxMatrix::Max{4, 3}));
  for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(matrix->valueForCoordinates(i, 0), 0);
  EXPECT_EQ(matrix->valueForCoordinates(12, 0), 1);
}

TEST(JxMatrix, LaysItsCellsRowAfterRow) {
  const auto matrix = JxMatrix::initWithMaxX(4, 3);
  matrix->setValue(7, 2, 1);
  EXPECT_EQ(matrix->valueForCoordinates(6, 0), 7);
  EXPECT_EQ(matrix->valueForCoordinates(2, 1), 7);
}

TEST(JxMatrix, KeepsEverySignedByte) {
  const auto matrix = JxMatrix::initWithMaxX(2, 2);
  for (int value = -128; value <= 127; ++value) {
    matrix->setValue(static_cast<std::int8_t>(value), 1, 1);
    EXPECT_EQ(matrix->valueForCoordinates(1, 1), value);
  }
}

TEST(JxMatrix, ColumnBeyondTheRowIsACellOfTheNext) {
  const auto matrix = JxMatrix::initWithMaxX(4, 3);
  matrix->setValue(5, 4, 0);
  EXPECT_EQ(matrix->valueForCoordinates(0, 1), 5);
  matrix->setValue(6, 1, 2);
  EXPECT_EQ(matrix->valueForCoordinates(5, 1), 6);
}

TEST(JxMatrix, ReadsBeyondTheLastCellAsOne) {
  const auto matrix = JxMatrix::initWithMaxX(4, 3);
  EXPECT_EQ(matrix->valueForCoordinates(3, 2), 0);
  EXPECT_EQ(matrix->valueForCoordinates(4, 2), 1);
  EXPECT_EQ(matrix->valueForCoordinates(0, 3), 1);
  EXPECT_EQ(matrix->valueForCoordinates(1000, 1000), 1);
}

TEST(JxMatrix, IgnoresWritesBeyondTheLastCell) {
  const auto matrix = JxMatrix::initWithMaxX(4, 3);
  matrix->setValue(9, 4, 2);
  matrix->setValue(9, 0, 3);
  for (std::size_t i = 0; i < 12; ++i) EXPECT_EQ(matrix->valueForCoordinates(i, 0), 0);
  EXPECT_EQ(matrix->valueForCoordinates(4, 2), 1);
}

TEST(JxMatrix, IndexWrapsLikeAMachineWord) {
  const auto matrix = JxMatrix::initWithMaxX(4, 2);
  matrix->setValue(8, 3, 0);
  EXPECT_EQ(matrix->valueForCoordinates(std::numeric_limits<std::size_t>::max(), 1), 8);
}

TEST(JxMatrix, FillsEveryCell) {
  const auto matrix = JxMatrix::initWithMaxX(3, 5);
  matrix->fillWithValue(-3);
  for (std::size_t i = 0; i < 15; ++i) EXPECT_EQ(matrix->valueForCoordinates(i, 0), -3);
  EXPECT_EQ(matrix->valueForCoordinates(15, 0), 1);
}

TEST(JxMatrix, MayHaveNoCells) {
  for (const JxMatrix::Max max : {JxMatrix::Max{0, 4}, JxMatrix::Max{4, 0}, JxMatrix::Max{0, 0}}) {
    const auto matrix = JxMatrix::initWithMax(max);
    EXPECT_EQ(matrix->max(), max);
    matrix->setValue(5, 0, 0);
    matrix->fillWithValue(5);
    EXPECT_EQ(matrix->valueForCoordinates(0, 0), 1);
    EXPECT_EQ(matrix->valueForCoordinates(3, 3), 1);
  }
}

TEST(JxMatrix, IsNotCopied) {
  static_assert(!std::is_copy_constructible_v<JxMatrix>);
  static_assert(!std::is_copy_assignable_v<JxMatrix>);
}

}  // namespace
}  // namespace kindora
