// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Formatters that take data and country from their environment.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <latch>
#include <string>
#include <thread>
#include <vector>

#include "phoneformat/LuPhoneFormat.h"
#include "phoneformat/PhoneFormatEnvironment.h"
#include "tests/phoneformat/HandMadeFile.h"

namespace kindora {
namespace {

using ::testing::ElementsAre;

class FakeEnvironment final : public PhoneFormatEnvironment {
 public:
  PhoneFormatData data(std::string_view name, std::string_view type) override {
    asked.push_back(std::string(name) + "." + std::string(type));
    return file;
  }
  std::string countryCode() override { return country; }

  PhoneFormatData file = handMadeFile(samplePlans());
  std::string country = "GB";
  std::vector<std::string> asked;
};

class LuPhoneFormatInstance : public ::testing::Test {
 protected:
  LuPhoneFormatInstance() { installPhoneFormatEnvironment(environment); }
  ~LuPhoneFormatInstance() override { installPhoneFormatEnvironment(nullptr); }

  std::shared_ptr<FakeEnvironment> environment = std::make_shared<FakeEnvironment>();
};

TEST_F(LuPhoneFormatInstance, InitTakesTheCountryInLowerCase) {
  EXPECT_EQ(LuPhoneFormat::init()->format("02071234567"), "(020) 7123 4567");
}

TEST_F(LuPhoneFormatInstance, EachFormatterReadsTheFileOnce) {
  const auto formatter = LuPhoneFormat::init();
  static_cast<void>(formatter->format("02071234567"));
  EXPECT_THAT(environment->asked, ElementsAre("PhoneFormats.dat"));
  static_cast<void>(LuPhoneFormat::init());
  EXPECT_EQ(environment->asked.size(), 2u);
}

TEST_F(LuPhoneFormatInstance, GivenCountryIsTakenAsItIs) {
  EXPECT_EQ(LuPhoneFormat::initWithDefaultCountry("us")->format("4155552671"), "(415) 555-2671");
  EXPECT_EQ(LuPhoneFormat::initWithDefaultCountry("US")->format("4155552671"), "4155552671");
}

TEST_F(LuPhoneFormatInstance, NoCountryOrAnEmptyOneMeansTheEnvironments) {
  EXPECT_EQ(LuPhoneFormat::initWithDefaultCountry(std::nullopt)->defaultCallingCode(), "44");
  EXPECT_EQ(LuPhoneFormat::initWithDefaultCountry("")->defaultCallingCode(), "44");
}

TEST_F(LuPhoneFormatInstance, UnknownCountryLeavesNationalNumbersAsTheyAre) {
  environment->country = "";
  const auto formatter = LuPhoneFormat::init();
  EXPECT_EQ(formatter->format("020 7"), "020 7");
  EXPECT_EQ(formatter->format("+442071"), "+44 20 71");
}

TEST_F(LuPhoneFormatInstance, WithoutAnEnvironmentNothingIsKnown) {
  installPhoneFormatEnvironment(nullptr);
  const auto formatter = LuPhoneFormat::init();
  EXPECT_EQ(formatter->defaultCallingCode(), std::nullopt);
  EXPECT_EQ(formatter->format("+44 x"), "+44 x");
}

TEST_F(LuPhoneFormatInstance, SixteenThreadsGetTheSameInstance) {
  constexpr int kThreads = 16;
  std::vector<LuPhoneFormat*> seen(kThreads);
  std::latch start(kThreads);
  std::vector<std::thread> threads;
  threads.reserve(kThreads);
  for (LuPhoneFormat*& mine : seen) {
    threads.emplace_back([&start, &mine] {
      start.arrive_and_wait();
      mine = &LuPhoneFormat::instance();
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const LuPhoneFormat* one : seen) EXPECT_EQ(one, seen.front());
  EXPECT_EQ(seen.front()->defaultCallingCode(), "44");
  EXPECT_EQ(environment->asked.size(), 1u);
}

}  // namespace
}  // namespace kindora
