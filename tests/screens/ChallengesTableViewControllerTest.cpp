// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/challenges/ChallengesTableViewController.h"

#include "tests/support/AppFixture.h"

namespace kindora {
namespace {

class ChallengesTable : public AppFixture {
 protected:
  static ChallengesTableViewController& list() { return top<ChallengesTableViewController>(); }
};

TEST_F(ChallengesTable, HasTwoSections) { EXPECT_EQ(list().numberOfSectionsInTableView(), 2); }

}  // namespace
}  // namespace kindora
