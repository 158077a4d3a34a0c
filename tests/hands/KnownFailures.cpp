// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/KnownFailures.h"

#include <algorithm>
#include <vector>

namespace kindora {
namespace {

struct KnownFailures {
  const char* reason;
  std::vector<HandKind> hands;
  std::vector<const char*> flows;
};

const std::vector<HandKind> kOnTheScreen{HandKind::finger, HandKind::inputMethod};
const std::vector<HandKind> kAllHands{HandKind::finger, HandKind::keys, HandKind::assistive,
                                      HandKind::inputMethod};

// A flow stands with what stops a hand first.
const std::vector<KnownFailures>& knownFailures() {
  static const std::vector<KnownFailures> table{
      {"a finger does not scroll a table by its rows",
       kOnTheScreen,
       {"ManyFriends", "SearchForFriends", "AlertsOfOtherKinds", "DeclaredAlert", "LegacyAlerts",
        "LegacyLogin"}},
      {"the swipe of a row keeps the back swipe from the picker", kOnTheScreen, {"LeavePicker"}},
      {"a finger's tap on a row in progress opens it for a swipe and closes it",
       kOnTheScreen,
       {"CompleteLater", "DeleteInProgress", "TurnedPhone"}},
      {"a row does nothing when it is pressed for long", kOnTheScreen, {"LongPress"}},
      {"one gesture is several shakes", kAllHands, {"HeartyShake"}},
      {"Tab through the search makes the friends vanish",
       {HandKind::keys},
       {"TypicalChallenge", "ManyFriends", "LeavePicker", "TickedFriend"}},
      {"the keyboard reaches only rows that are in sight",
       {HandKind::keys},
       {"SearchForFriends", "AlertsOfOtherKinds", "DeclaredAlert", "LegacyAlerts", "LegacyLogin"}},
      {"the keyboard does not go up to badges above those in sight",
       {HandKind::keys},
       {"ManyBadges"}},
      {"no control answers an assistive tool",
       {HandKind::assistive},
       {"TypicalChallenge",
        "AcceptChallenge",
        "RejectChallenge",
        "LeaveCovered",
        "CompleteLater",
        "DeleteInProgress",
        "LongPress",
        "TurnedPhone",
        "Tabs",
        "CreateFromLibrary",
        "CreateFromLongLibrary",
        "CreateFromFolder",
        "CreateFromFileChooser",
        "CreateWithoutCamera",
        "TakeASquare",
        "DamagedPicture",
        "CancelledSheet",
        "ManyBadges",
        "ManyFriends",
        "LeavePicker",
        "TickedFriend",
        "SearchForFriends",
        "InviteWithNumber",
        "CorrectNumber",
        "ScratchPage",
        "CurvesPage",
        "GridPage",
        "PhonePage",
        "AlertsOfButtons",
        "AlertsOfOtherKinds",
        "DisabledButton",
        "AlertWithFields",
        "DeclaredAlert",
        "LegacyAlerts",
        "LegacyLogin"}},
      {"an assistive tool is offered nothing for a row's swipe",
       {HandKind::assistive},
       {"RejectRow"}},
      {"a tick is read as a name", kOnTheScreen, {"TickedFriend"}},
      {"a disabled button does not say so",
       {HandKind::finger, HandKind::keys, HandKind::inputMethod},
       {"DisabledButton"}},
      {"what is being composed lands elsewhere in a number",
       {HandKind::inputMethod},
       {"InviteWithNumber", "CorrectNumber", "PhonePage"}},
      {"deleting stops at a number's separators",
       {HandKind::finger, HandKind::keys},
       {"CorrectNumber"}},
  };
  return table;
}

}  // namespace

std::optional<std::string> knownFailure(const std::string& flow, HandKind hand) {
  for (const KnownFailures& failures : knownFailures()) {
    if (std::ranges::count(failures.hands, hand) > 0 &&
        std::ranges::count(failures.flows, flow) > 0) {
      return failures.reason;
    }
  }
  return std::nullopt;
}

}  // namespace kindora
