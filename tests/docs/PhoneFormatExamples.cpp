// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <filesystem>

#include "phoneformat/LuPhoneFormat.h"
#include "phoneformat/source/SourceText.h"

namespace kindora {
namespace {

// The examples look for the data in the present folder.
class PhoneFormatExamples : public ::testing::Test {
 protected:
  PhoneFormatExamples() {
    std::filesystem::current_path(std::filesystem::path(KINDORA_PHONEFORMATS_FILE).parent_path());
  }
};

TEST_F(PhoneFormatExamples, OfTheHeader) {
#include "examples/phoneformat/LuPhoneFormat.h.1"
  EXPECT_EQ(formatter.format("02071234567"), "020 7123 4567");
  EXPECT_TRUE(formatter.isPhoneNumberValid("+442071234567"));
}

TEST_F(PhoneFormatExamples, OfThePage) {
#include "examples/docs/phoneformat.md.1"
  EXPECT_EQ(formatter.format("02071234567"), "020 7123 4567");
  EXPECT_EQ(formatter.format("+1415555"), "+1 415-555");
  EXPECT_TRUE(formatter.isPhoneNumberValid("020 7123 4567"));
}

TEST_F(PhoneFormatExamples, ASourceThatIsRead) {
  const SourceText read = parseSource(
#include "examples/phoneformat/source/SourceText.h.1.text"
      , "example");
  EXPECT_TRUE(read.problems.empty());
  ASSERT_EQ(read.blocks.size(), 1U);
  EXPECT_EQ(read.blocks[0].plan.callingCode, "44");
}

}  // namespace
}  // namespace kindora
