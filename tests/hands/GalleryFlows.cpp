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
  hand.sees("0 % gone");
  hand.press("Scratch away");
  hand.sees("100 % gone");
  hand.press("Start anew");
  hand.sees("0 % gone");
  const std::string cells = hand.sees("0 % gone").name;
  hand.increase("Radius");
  hand.seesNoMore(cells);
  hand.press("Show the grid");
  require(!hand.sees("Show the grid").state.checked, "the grid is still shown");
  hand.back();
  hand.sees("Gallery");
}

void curvesPage(Hand& hand) {
  hand.press("Curves");
  hand.sees("60 frames in 1.0 s");
  hand.increase("Duration");
  hand.seesNoMore("60 frames in 1.0 s");
  hand.press("Allow overdamping");
  require(hand.sees("Allow overdamping").state.checked, "overdamping is not allowed");
  hand.press("Tween");
  require(hand.sees("Tween").state.checked, "the tween is not chosen");
  hand.press("Ease in");
  require(hand.sees("Ease in").state.checked, "the timing is not chosen");
  hand.press("Play");
  hand.back();
  hand.sees("Gallery");
}

void gridPage(Hand& hand) {
  hand.press("Springy grid");
  hand.press("Cell 7");
  hand.sees("Cell 7 was pressed");
  hand.press("Cell 90");
  hand.sees("Cell 90 was pressed");
  hand.back();
  hand.sees("Gallery");
}

void phonePage(Hand& hand) {
  hand.press("Phone numbers");
  hand.press("United States");
  hand.type("Search", "kingdom");
  hand.press("United Kingdom");
  hand.sees("United Kingdom, +44");
  hand.type("Phone number", "02071234567");
  requireText(hand, "Phone number", "020 7123 4567");
  hand.sees("A valid number");
  hand.scrollTo("+44 20 7123 4567");
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
