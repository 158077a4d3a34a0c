// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::GTEST_FLAG(death_test_style) = "threadsafe";
  qputenv("KINDORA_LOOKS", "light");  // whatever the machine's own
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
