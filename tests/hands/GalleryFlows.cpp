// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// The gallery's pages, one by one.
#include <string>

#include "gallery/Launch.h"
#include "tests/hands/Flow.h"

namespace kindora {
namespace {

void scratchPage(Hand& hand) {
  hand.press("Scratch-off");
  hand.reads("0 % gone");
  hand.press("Scratch away");
  hand.reads("100 % gone");
  hand.press("Start anew");
  hand.reads("0 % gone");
  const std::string cells = hand.reads("0 % gone").name;
  hand.increase("Radius");
  hand.seesNoMore(cells);
  hand.press("Show the grid");
  require(!hand.reads("Show the grid").state.checked, "the grid is still shown");
  hand.back();
  hand.sees("Gallery");
}

void curvesPage(Hand& hand) {
  hand.press("Curves");
  hand.reads("60 frames in 1.0 s");
  hand.increase("Duration");
  hand.seesNoMore("60 frames in 1.0 s");
  hand.press("Allow overdamping");
  require(hand.reads("Allow overdamping").state.checked, "overdamping is not allowed");
  hand.press("Tween");
  require(hand.reads("Tween").state.checked, "the tween is not chosen");
  hand.press("Ease in");
  require(hand.reads("Ease in").state.checked, "the timing is not chosen");
  hand.press("Play");
  hand.back();
  hand.sees("Gallery");
}

void gridPage(Hand& hand) {
  hand.press("Springy grid");
  hand.press("Cell 7");
  hand.reads("Cell 7 was pressed");
  hand.press("Cell 90");
  hand.reads("Cell 90 was pressed");
  hand.back();
  hand.sees("Gallery");
}

void phonePage(Hand& hand) {
  hand.press("Phone numbers");
  hand.press("United States");
  hand.type("Search", "kingdom");
  hand.press("United Kingdom");
  hand.reads("United Kingdom, +44");
  hand.type("Phone number", "02071234567");
  requireText(hand, "Phone number", "020 7123 4567");
  hand.reads("A valid number");
  hand.reads("+44 20 7123 4567");
  hand.back();
  hand.sees("Gallery");
}

}  // namespace

std::vector<Flow> galleryFlows() {
  const auto flow = [](const char* name, void (*play)(Hand&)) {
    return Flow{name, launchGallery, play};
  };
  return {flow("ScratchPage", scratchPage), flow("CurvesPage", curvesPage),
          flow("GridPage", gridPage), flow("PhonePage", phonePage)};
}

}  // namespace kindora
