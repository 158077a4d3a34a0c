// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/Responder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace kindora {
namespace {

using enum ResponderEvents;

// Writes down what it is told.
class Listener final : public Responder {
 public:
  Listener(ResponderEvents takes, std::string name, std::vector<std::string>& log)
      : Responder(takes), name_(std::move(name)), log_(log) {}
  void enter() { enterResponderChain(); }
  void leave() { leaveResponderChain(); }

 private:
  void respondingDidChange() override {
    log_.push_back(name_ + (isResponding() ? " begins" : " ceases"));
  }
  std::string name_;
  std::vector<std::string>& log_;
};

class ResponderTest : public ::testing::Test {
 protected:
  std::vector<std::string> log;
  Listener field{keys, "field", log};
  Listener bar{keys, "bar", log};
  Listener list{motions, "list", log};
};

TEST_F(ResponderTest, NobodyIsFirstAtTheStart) {
  EXPECT_EQ(Responder::firstResponder(), nullptr);
  EXPECT_EQ(Responder::responderFor(keys), nullptr);
  EXPECT_FALSE(field.isFirstResponder());
  EXPECT_FALSE(field.isResponding());
}

TEST_F(ResponderTest, AtMostOneIsFirst) {
  list.enter();
  EXPECT_TRUE(list.isFirstResponder());
  field.enter();
  EXPECT_FALSE(list.isFirstResponder());
  EXPECT_TRUE(field.isFirstResponder());
  EXPECT_EQ(Responder::firstResponder(), &field);
}

TEST_F(ResponderTest, WhatTheFirstDoesNotTakeGoesOnToTheNext) {
  list.enter();
  field.enter();
  EXPECT_EQ(Responder::responderFor(motions), &list);
  EXPECT_EQ(Responder::responderFor(keys), &field);
  EXPECT_TRUE(list.isResponding());
}

TEST_F(ResponderTest, TheKeyboardStaysWithAFieldBehindAList) {
  field.enter();
  list.enter();
  EXPECT_TRUE(list.isFirstResponder());
  EXPECT_TRUE(field.isResponding());
  EXPECT_EQ(log, (std::vector<std::string>{"field begins", "list begins"}));
}

TEST_F(ResponderTest, WhoeverWaitedIsFirstAgain) {
  list.enter();
  field.enter();
  field.leave();
  EXPECT_TRUE(list.isFirstResponder());
}

TEST_F(ResponderTest, TheKeyboardIsInOnePlaceOnlyAndGoesBackToNobody) {
  field.enter();
  bar.enter();
  EXPECT_FALSE(field.isResponding());
  bar.leave();
  EXPECT_EQ(Responder::firstResponder(), nullptr);
  EXPECT_EQ(log,
            (std::vector<std::string>{"field begins", "field ceases", "bar begins", "bar ceases"}));
}

TEST_F(ResponderTest, EnteringAgainOnlyMovesToTheHead) {
  field.enter();
  list.enter();
  log.clear();
  field.enter();
  EXPECT_TRUE(field.isFirstResponder());
  EXPECT_TRUE(list.isResponding());
  EXPECT_TRUE(log.empty());
}

TEST_F(ResponderTest, LeavingFromElsewhereChangesNothing) {
  field.enter();
  bar.leave();
  EXPECT_TRUE(field.isFirstResponder());
  EXPECT_EQ(log, std::vector<std::string>{"field begins"});
}

TEST_F(ResponderTest, OneThatGoesLeavesTheChain) {
  list.enter();
  auto gone = std::make_unique<Listener>(keys, "gone", log);
  gone->enter();
  gone.reset();
  EXPECT_TRUE(list.isFirstResponder());
  EXPECT_EQ(Responder::responderFor(keys), nullptr);
}

}  // namespace
}  // namespace kindora
