// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  // The tests leave a thread behind, which a plain fork would not take along.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  // On the heap, so that a test can end it.
  new QCoreApplication(argc, argv);
  const int result = RUN_ALL_TESTS();
  delete QCoreApplication::instance();
  return result;
}
