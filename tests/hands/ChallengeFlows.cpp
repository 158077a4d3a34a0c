// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A challenge from its delivery to its end.
#include <string>

#include "main/Launch.h"
#include "model/ChallengeData.h"
#include "tests/hands/Flow.h"

namespace kindora {
namespace {

const std::string kBob = "Bob the Astronaut";
const std::string kBreath = "Catch Your Breath";
const std::string kCompliment = "Compliment Challenge";
const std::string kHorace = "Horace the Smiley";
const std::string kAccepted = "Challenge accepted!";

// In swings.
constexpr int kShake = 4;
constexpr int kHeartyShake = 14;

const ChallengeData& challengesNow() { return ChallengeData::sharedInstance(); }

void typicalChallenge(Hand& hand) {
  hand.shake(kShake);
  hand.sees("New challenge from Horace the Smiley!");
  hand.seesNoMore("New challenge from Horace the Smiley!");
  hand.press(kHorace);
  hand.uncover();
  hand.reads("Music Challenge");
  hand.reads("Share your favorite song with someone!");
  hand.press("Accept");
  hand.sees(kAccepted);
  hand.seesNoMore(kAccepted);
  hand.press("Music Challenge");
  hand.press("Complete");
  hand.sees("Congrats!");
  hand.press("Kindora!");
  hand.sees("Select Friends");
  hand.press(kBob);
  hand.press(kHorace);
  hand.sees("2 Friends Selected");
  hand.press("Send");
  hand.sees("Passed on \"Music Challenge\" to 2 friends!");
  hand.reads("You've passed this on!");
  const ChallengeData::List& completed = challengesNow().completedChallenges;
  require(completed.size() == 1 && completed[0]->passedOn, "it was not passed on");
  hand.back();
  hand.sees("Badges");
  hand.press("Challenges");
  hand.reads("New Challenges");
}

void acceptChallenge(Hand& hand) {
  hand.press(kBob);
  hand.uncover();
  hand.press("Accept");
  hand.sees(kAccepted);
  hand.seesNoMore(kAccepted);
  require(challengesNow().inProgressChallenges.back()->title == "Cup o' Coffee",
          "it is not in progress");
  hand.reads("Cup o' Coffee, From: Bob the Astronaut");
}

void rejectChallenge(Hand& hand) {
  hand.press(kBob);
  hand.uncover();
  hand.press("Reject");
  hand.sees("Reject \"Cup o' Coffee\"?");
  hand.press("Never Mind");
  hand.reads("Accept");
  hand.press("Reject");
  hand.sees("Bob the Astronaut will be so disappointed.");
  hand.press("Reject");
  hand.seesNoMore(kBob);
  require(challengesNow().newChallenges.size() == 2, "it is still there");
  hand.reads("New Challenges");
}

void rejectRow(Hand& hand) {
  hand.rejectRow(kCompliment);
  hand.sees("Reject \"Compliment Challenge\"?");
  hand.press("Never Mind");
  hand.seesNoMore("Reject \"Compliment Challenge\"?");
  require(challengesNow().inProgressChallenges.size() == 2, "a row has gone after all");
  for (const std::string& row : {kCompliment, kBreath}) {
    hand.rejectRow(row);
    hand.sees("Reject \"" + row + "\"?");
    hand.press("Reject");
    hand.seesNoMore(row);
  }
  require(challengesNow().inProgressChallenges.empty(), "a row is left");
  hand.reads("No Challenges in Progress");
}

void leaveCovered(Hand& hand) {
  hand.press(kBob);
  hand.sees("Bob the Astronaut challenged you!");
  require(!hand.canSee("Accept"), "a covered challenge can be accepted");
  require(!hand.canSee("Cup o' Coffee"), "a covered challenge can be read");
  hand.back();
  hand.reads("New Challenges");
  require(challengesNow().newChallenges.size() == 3, "going back changed the list");
}

void completeLater(Hand& hand) {
  hand.press(kBreath);
  hand.reads("Josh the Whale sent you this challenge.");
  hand.press("Complete");
  hand.sees("Congrats!");
  hand.press("Later");
  hand.seesNoMore("Congrats!");
  require(challengesNow().completedChallenges.size() == 1, "it is not completed");
  hand.sees("Badges, 1");
  hand.press("Badges");
  hand.press(kBreath);
  hand.reads("Get a breath of fresh air!");
  hand.back();
  hand.press("Challenges");
  hand.reads(kBob);
}

void deleteInProgress(Hand& hand) {
  hand.press(kBreath);
  hand.press("Delete");
  hand.sees("Reject \"Catch Your Breath\"?");
  hand.press("Never Mind");
  hand.press("Delete");
  hand.sees("Josh the Whale will be so disappointed.");
  hand.press("Reject");
  hand.seesNoMore(kBreath);
  require(challengesNow().inProgressChallenges.size() == 1, "it is still there");
}

void longPress(Hand& hand) {
  hand.pressLong(kBob);
  hand.sees("Bob the Astronaut challenged you!");
}

void heartyShake(Hand& hand) {
  hand.shake(kHeartyShake);
  hand.sees("New challenge from Horace the Smiley!");
  hand.seesNoMore("New challenge from Horace the Smiley!");
  require(challengesNow().newChallenges.size() == 4, "one shake delivered several challenges");
}

void turnedPhone(Hand& hand) {
  const QSize size = hand.program().window().size();
  hand.press(kBreath);
  hand.program().resize(size.transposed());
  hand.reads("Get a breath of fresh air!");
  hand.press("Complete");
  hand.sees("Congrats!");
  hand.program().resize(size);
  hand.press("Later");
  hand.reads("New Challenges");
  hand.sees("Badges, 1");
}

void tabs(Hand& hand) {
  hand.press("Badges");
  hand.sees("No badges yet.\nComplete or create a challenge to earn one!");
  hand.press("Challenges");
  hand.reads("New Challenges");
}

}  // namespace

std::vector<Flow> challengeFlows() {
  const auto flow = [](const char* name, void (*play)(Hand&)) { return Flow{name, launch, play}; };
  return {flow("TypicalChallenge", typicalChallenge),
          flow("AcceptChallenge", acceptChallenge),
          flow("RejectChallenge", rejectChallenge),
          flow("RejectRow", rejectRow),
          flow("LeaveCovered", leaveCovered),
          flow("CompleteLater", completeLater),
          flow("DeleteInProgress", deleteInProgress),
          flow("LongPress", longPress),
          flow("HeartyShake", heartyShake),
          flow("TurnedPhone", turnedPhone),
          flow("Tabs", tabs)};
}

}  // namespace kindora
