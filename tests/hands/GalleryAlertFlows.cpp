// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The gallery's alerts: each opened from its row and answered.
#include <string>

#include "gallery/Launch.h"
#include "tests/hands/Flow.h"

namespace kindora {
namespace {

// Opens an alert and gives its answer, which the page then tells.
void answer(Hand& hand, const std::string& row, const std::string& button) {
  hand.press(row);
  hand.press(button);
  hand.reads("You chose " + button + ".");
}

void alertsOfButtons(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  answer(hand, "One action, A message and a button", "OK");
  answer(hand, "Two actions, Side by side", "Delete");
  answer(hand, "Three actions, One below another", "Save a copy");
  answer(hand, "Two actions, stacked, The layout is chosen", "Later");
  answer(hand, "Four actions in a row", "West");
  answer(hand, "Five actions, One below another", "Emma");
}

void alertsOfOtherKinds(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  answer(hand, "Content of its own", "Lovely");
  answer(hand, "Disabled and destructive", "Delete");
  hand.press("Veto");
  hand.press("Not yet");
  hand.reads("Asked 1 time. Take the time you need.");
  hand.press("Ready");
  hand.reads("You chose Ready.");
  answer(hand, "Long text", "Sing");
  answer(hand, "Attributed texts", "Thank you very much");
}

void disabledButton(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  hand.press("Disabled and destructive");
  require(hand.reads("Archive").state.disabled, "the grey button does not say that it is disabled");
}

void alertWithFields(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  hand.press("Text fields");
  hand.type("Name", "Ada");
  hand.type("Password", "secret");
  hand.press("OK");
  hand.reads("You signed in as Ada with a password.");
}

void declaredAlert(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  hand.press("Declared alert");
  hand.type("Name of the pet", "Rex");
  hand.press("Call");
  hand.reads("You called the pet Rex.");
}

void legacyAlerts(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  answer(hand, "Legacy, two buttons", "Send");
  answer(hand, "Legacy, five buttons", "So-so");
  hand.press("Three in a queue");
  for (const char* title : {"Third", "Second", "First"}) {
    hand.sees(title);
    hand.press("Next");
  }
  hand.reads("First has gone.");
  hand.press("One over another");
  hand.press("More");
  hand.sees("Above");
  hand.press("Back");
  hand.sees("Below");
  hand.press("Close");
  hand.reads("You chose Close.");
}

void legacyLogin(Hand& hand) {
  hand.press("Alerts, Cards that ask and tell");
  hand.press("Legacy, login fields");
  hand.type("Login", "ada");
  hand.type("Password", "secret");
  hand.press("Log in");
  hand.reads("You logged in as ada with a password.");
}

}  // namespace

std::vector<Flow> galleryAlertFlows() {
  const auto flow = [](const char* name, void (*play)(Hand&)) {
    return Flow{name, launchGallery, play};
  };
  return {flow("AlertsOfButtons", alertsOfButtons), flow("AlertsOfOtherKinds", alertsOfOtherKinds),
          flow("DisabledButton", disabledButton),   flow("AlertWithFields", alertWithFields),
          flow("DeclaredAlert", declaredAlert),     flow("LegacyAlerts", legacyAlerts),
          flow("LegacyLogin", legacyLogin)};
}

}  // namespace kindora
