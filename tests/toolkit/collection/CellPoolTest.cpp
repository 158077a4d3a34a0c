// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/collection/CellPool.h"

#include <gtest/gtest.h>

#include <memory>

#include "toolkit/collection/ReusableCell.h"

namespace kindora {
namespace {

class AwakeningCell final : public ReusableCell {
 public:
  int timesAwoken = 0;
  std::string kindWhenAwoken;
  void awakeFromNib() override {
    ++timesAwoken;
    kindWhenAwoken = reuseIdentifier();
  }
};

// A pool of the kinds "small" and "large".
class CellPoolTest : public ::testing::Test {
 protected:
  CellPoolTest() {
    for (const char* kind : {"small", "large"}) {
      pool.registerCell(kind, [this] {
        ++made;
        return std::make_shared<AwakeningCell>();
      });
    }
  }

  CellPool<AwakeningCell> pool;
  int made = 0;
};

TEST_F(CellPoolTest, MakesACellOfTheKindThatIsAskedFor) {
  EXPECT_EQ(pool.dequeue("small")->reuseIdentifier(), "small");
  EXPECT_EQ(pool.dequeue("large")->reuseIdentifier(), "large");
  EXPECT_EQ(made, 2);
}

TEST_F(CellPoolTest, MakesNoneInAdvance) { EXPECT_EQ(made, 0); }

TEST_F(CellPoolTest, AwakensACellWhenItIsMadeAndNotAgain) {
  const auto cell = pool.dequeue("small");
  EXPECT_EQ(cell->timesAwoken, 1);
  EXPECT_EQ(cell->kindWhenAwoken, "small");
  pool.recycle(cell);
  EXPECT_EQ(pool.dequeue("small")->timesAwoken, 1);
}

TEST_F(CellPoolTest, GivesACellOutAgainOnceItWasPutBack) {
  const auto cell = pool.dequeue("small");
  EXPECT_NE(pool.dequeue("small"), cell);
  pool.recycle(cell);
  EXPECT_EQ(pool.dequeue("small"), cell);
  EXPECT_EQ(made, 2);
}

TEST_F(CellPoolTest, GivesTheCellThatWasPutBackLast) {
  const auto first = pool.dequeue("small");
  const auto second = pool.dequeue("small");
  pool.recycle(first);
  pool.recycle(second);
  EXPECT_EQ(pool.dequeue("small"), second);
  EXPECT_EQ(pool.dequeue("small"), first);
}

TEST_F(CellPoolTest, KeepsTheKindsApart) {
  const auto small = pool.dequeue("small");
  pool.recycle(small);
  EXPECT_NE(pool.dequeue("large"), small);
  EXPECT_EQ(pool.dequeue("small"), small);
}

TEST_F(CellPoolTest, ACellThatIsPutBackIsNoLongerPressed) {
  const auto cell = pool.dequeue("small");
  cell->setHighlighted(true, false);
  pool.recycle(cell);
  EXPECT_FALSE(cell->isHighlighted());
}

TEST_F(CellPoolTest, HoldsWhatIsPutBack) {
  auto cell = pool.dequeue("small");
  const std::weak_ptr<AwakeningCell> held = cell;
  pool.recycle(std::move(cell));
  EXPECT_FALSE(held.expired());
}

TEST_F(CellPoolTest, DoesNotHoldWhatIsGivenOut) {
  auto cell = pool.dequeue("small");
  const std::weak_ptr<AwakeningCell> gone = cell;
  cell.reset();
  EXPECT_TRUE(gone.expired());
}

TEST_F(CellPoolTest, AKindThatNobodyRegisteredStops) {
  EXPECT_DEATH(static_cast<void>(pool.dequeue("huge")),
               "fatal error: no cell is registered as \"huge\"");
}

}  // namespace
}  // namespace kindora
