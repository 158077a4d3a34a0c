// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <QCoreApplication>

#ifdef __SANITIZE_THREAD__
// Qt is built without the sanitizer, which therefore does not see Qt's own locks.
extern "C" const char* __tsan_default_options() {  // NOLINT(bugprone-reserved-identifier)
  return "ignore_noninstrumented_modules=1";
}
#endif

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  qputenv("KINDORA_LOOKS", "light");  // whatever the machine's own
  // The tests leave a thread behind, which a plain fork would not take along.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  // On the heap, so that a test can end it.
  new QCoreApplication(argc, argv);
  const int result = RUN_ALL_TESTS();
  delete QCoreApplication::instance();
  return result;
}
