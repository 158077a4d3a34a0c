// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "platform/qt/StandardConsole.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace kindora {
namespace {

TEST(StandardConsole, WritesTheTextAndANewlineToStandardOutputAlone) {
  ::testing::internal::CaptureStdout();
  ::testing::internal::CaptureStderr();
  StandardConsole().printLine("URL Session Task Succeeded: HTTP 200 %@ %s");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            "URL Session Task Succeeded: HTTP 200 %@ %s\n");
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
}

TEST(StandardConsole, LinesOfManyThreadsStayWhole) {
  ::testing::internal::CaptureStdout();
  StandardConsole console;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&, text = std::string(50, static_cast<char>('a' + i))] {
      for (int line = 0; line < 100; ++line) console.printLine(text);
    });
  }
  for (std::thread& thread : threads) thread.join();
  std::istringstream written(::testing::internal::GetCapturedStdout());
  int lines = 0;
  for (std::string line; std::getline(written, line); ++lines) {
    EXPECT_EQ(line, std::string(50, line.empty() ? '?' : line[0]));
  }
  EXPECT_EQ(lines, 400);
}

}  // namespace
}  // namespace kindora
