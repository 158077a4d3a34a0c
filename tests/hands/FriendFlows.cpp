// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Many badges, many friends, and a friend who is invited.
#include <algorithm>
#include <cctype>
#include <memory>
#include <string>

#include "main/Launch.h"
#include "model/ChallengeData.h"
#include "model/Friends.h"
#include "platform/services/Services.h"
#include "tests/hands/Flow.h"

namespace kindora {
namespace {

constexpr std::size_t kMany = 40;

std::string numbered(const std::string& what, std::size_t number) {
  return what + (number < 10 ? " 0" : " ") + std::to_string(number);
}

// "Deed 40" is the first badge and "Deed 01" the last.
void earnManyBadges() {
  for (std::size_t i = 1; i <= kMany; ++i) {
    auto challenge = std::make_shared<Challenge>();
    challenge->title = numbered("Deed", i);
    challenge->description = "Carried a bag.";
    challenge->challengeImage = services().bundle->imageNamed("coffee");
    challenge->created = true;
    ChallengeData::sharedInstance().addCreatedChallenge(challenge);
  }
}

// Those who sent something, and behind them up to "Friend 40".
void findManyFriends() {
  Friends& friends = Friends::sharedInstance();
  while (friends.friendUsers.size() < kMany) {
    friends.addFriend(std::make_shared<User>(numbered("Friend", friends.friendUsers.size() + 1),
                                             services().bundle->imageNamed("face0"), std::nullopt));
  }
}

void openPicker(Hand& hand) {
  earnManyBadges();
  hand.press("Badges");
  hand.press("Deed 40");
  hand.press("Kindora!");
  hand.sees("Select Friends");
}

void manyBadges(Hand& hand) {
  earnManyBadges();
  hand.press("Badges");
  hand.scrollTo("Deed 01");
  hand.press("Deed 01");
  hand.reads("Carried a bag.");
  hand.reads("You created this challenge!\nNow Kindora to a friend!");
  hand.back();
  hand.press("Deed 20");
  hand.reads("Carried a bag.");
}

void manyFriends(Hand& hand) {
  findManyFriends();
  openPicker(hand);
  hand.press("Friend 23");
  hand.sees("1 Friend Selected");
  hand.press("Friend 40");
  hand.sees("2 Friends Selected");
  hand.press("Friend 40");
  hand.sees("1 Friend Selected");
  hand.press("Send");
  hand.sees("Passed on \"Deed 40\" to 1 friend!");
  hand.reads("You've passed this on!");
  require(ChallengeData::sharedInstance().completedChallenges[0]->passedOn, "it was not passed on");
}

void leavePicker(Hand& hand) {
  openPicker(hand);
  hand.press("Joe in the Red Shirt");
  hand.back();
  hand.reads("Kindora!");
  require(!ChallengeData::sharedInstance().completedChallenges[0]->passedOn, "it was passed on");
}

void tickedFriend(Hand& hand) {
  openPicker(hand);
  hand.press("Joe in the Red Shirt");
  hand.sees("1 Friend Selected");
  const QAccessible::State state = hand.reads("Joe in the Red Shirt").state;
  require(state.checked || state.selected, "the tick is not told as a state");
}

void searchForFriends(Hand& hand) {
  findManyFriends();
  openPicker(hand);
  hand.type("Search", "friend 31");
  hand.seesNoMore("Friend 30");
  hand.press("Friend 31");
  hand.sees("1 Friend Selected");
  hand.press("Clear text");
  hand.seesNoMore("Friend 31");
  hand.type("Search", "astro");
  hand.press("Bob the Astronaut");
  hand.sees("2 Friends Selected");
  hand.press("Cancel");
  hand.scrollTo("Friend 31");
  hand.press("Send");
  hand.sees("Passed on \"Deed 40\" to 2 friends!");
}

void openInvitation(Hand& hand) {
  openPicker(hand);
  hand.press("Invite a Friend...");
  hand.sees("Invite a Friend");
}

void inviteWithNumber(Hand& hand) {
  openInvitation(hand);
  hand.type("Name", "Ann");
  hand.type("Phone Number", "4155552671");
  requireText(hand, "Phone Number", "(415) 555-2671");
  hand.type("Message", "Hi");
  hand.press("Send");
  hand.sees("Invitation sent!");
  hand.seesNoMore("Invitation sent!");
  hand.reads("Ann (Invited)");
  require(Friends::sharedInstance().friendUsers.back()->name == "Ann (Invited)",
          "nobody was invited");
}

// The character behind a separator goes, as nothing would come of taking the separator away.
void correctNumber(Hand& hand) {
  openInvitation(hand);
  hand.type("Phone Number", "4155552671");
  hand.eraseAt("Phone Number", 4);
  std::string digits = hand.textOf("Phone Number");
  std::erase_if(digits, [](unsigned char character) { return !std::isdigit(character); });
  require(digits == "415552671", "the number is now " + digits);
}

}  // namespace

std::vector<Flow> friendFlows() {
  const auto flow = [](const char* name, void (*play)(Hand&)) { return Flow{name, launch, play}; };
  return {flow("ManyBadges", manyBadges),
          flow("ManyFriends", manyFriends),
          flow("LeavePicker", leavePicker),
          flow("TickedFriend", tickedFriend),
          flow("SearchForFriends", searchForFriends),
          flow("InviteWithNumber", inviteWithNumber),
          flow("CorrectNumber", correctNumber)};
}

}  // namespace kindora
