// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/shared/PlaceholderTableViewCell.h"

#include <gtest/gtest.h>

namespace kindora {
namespace {

TEST(PlaceholderTableViewCell, ThePrototypeConnectsItsMessage) {
  const auto cell = PlaceholderTableViewCell::fromPrototype();
  ASSERT_NE(cell->messageLabel.lock(), nullptr);
  EXPECT_EQ(cell->outlet("messageLabel"), cell->messageLabel.lock());
  EXPECT_EQ(cell->messageLabel.lock()->text(), std::nullopt);
}

}  // namespace
}  // namespace kindora
