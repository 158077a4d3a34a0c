// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// A challenge of one's own, with a picture from wherever one can be had.
#include <string>
#include <vector>

#include "main/Launch.h"
#include "model/ChallengeData.h"
#include "platform/UIImage.h"
#include "tests/hands/Flow.h"

namespace kindora {
namespace {

const std::string kTitle = "Wave at a stranger";
constexpr Rgba8 kMiddle{200, 30, 40, 255};
constexpr Rgba8 kRim{30, 60, 200, 255};

// A square in the middle of a rim.
UIImageRef rimmedPicture() {
  constexpr std::size_t kSide = 200;
  Raster raster(kSide, kSide);
  for (std::size_t y = 0; y < kSide; ++y) {
    for (std::size_t x = 0; x < kSide; ++x) {
      const bool rim = x < 20 || y < 20 || x >= kSide - 20 || y >= kSide - 20;
      raster.setPixel(x, y, rim ? kRim : kMiddle);
    }
  }
  return UIImage::imageWithRaster(raster);
}

void beginCreating(Hand& hand) {
  hand.press("Create Challenge");
  hand.type("Title", kTitle);
  hand.type("Description", "And smile");
  requireText(hand, "Title", kTitle);
  requireText(hand, "Description", "And smile");
}

// From the square on to the badge.
const Challenge& finishCreating(Hand& hand) {
  hand.press("Choose");
  hand.reads("Change Photo");
  hand.press("Create");
  hand.sees("Challenge created!");
  hand.press("Later");
  hand.seesNoMore("Challenge created!");
  const ChallengeData::List& completed = ChallengeData::sharedInstance().completedChallenges;
  require(completed.size() == 1 && completed[0]->title == kTitle, "it was not created");
  require(completed[0]->challengeImage != nullptr, "it has no picture");
  hand.press("Badges");
  hand.reads(kTitle);
  return *completed[0];
}

void createFromLibrary(Hand& hand) {
  hand.program().photos().addPhoto("/pictures/new.png", rimmedPicture());
  hand.program().photos().addPhoto("/pictures/old.png", rimmedPicture());
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Choose Existing");
  hand.press("new.png");
  finishCreating(hand);
}

void createFromLongLibrary(Hand& hand) {
  for (int i = 10; i < 70; ++i) {
    hand.program().photos().addPhoto("/pictures/" + std::to_string(i) + ".png", rimmedPicture());
  }
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Choose Existing");
  hand.press("69.png");
  finishCreating(hand);
}

void createFromFolder(Hand& hand) {
  FakePhotos& photos = hand.program().photos();
  photos.addPhoto("/home/ann/Elsewhere/blue.png", rimmedPicture());
  photos.folders[""] = {{"/home/ann/Elsewhere", "Elsewhere", true}};
  photos.folders["/home/ann/Elsewhere"] = {{"/home/ann/Elsewhere/blue.png", "blue.png", false}};
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Choose Existing");
  hand.press("Browse Folders");
  hand.press("Elsewhere");
  hand.press("blue.png");
  finishCreating(hand);
}

void createFromFileChooser(Hand& hand) {
  FakePhotos& photos = hand.program().photos();
  photos.addPhoto("/pictures/new.png", rimmedPicture());
  photos.fileChooser = true;
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Choose Existing");
  hand.sees("Choose a picture in the window that opens.");
  photos.answerChoice("/pictures/new.png");
  finishCreating(hand);
}

void createWithoutCamera(Hand& hand) {
  hand.program().photos().addPhoto("/pictures/new.png", rimmedPicture());
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Take Photo");
  hand.sees("No camera found on this device.");
  hand.press("Choose Existing");
  hand.press("new.png");
  finishCreating(hand);
}

void takeASquare(Hand& hand) {
  hand.program().photos().addPhoto("/pictures/new.png", rimmedPicture());
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Choose Existing");
  hand.press("new.png");
  hand.zoomIn("Move and Scale");
  const Raster& taken = finishCreating(hand).challengeImage->raster();
  require(taken.pixel(1, 1) == kMiddle, "the rim is still in the picture");
}

void damagedPicture(Hand& hand) {
  hand.program().photos().addPhoto("/pictures/damaged.png", nullptr);
  beginCreating(hand);
  hand.press("Add Photo");
  hand.press("Choose Existing");
  hand.press("damaged.png");
  hand.sees("This picture cannot be opened.");
  hand.press("OK");
  hand.press("Cancel");
  requireText(hand, "Title", kTitle);
}

void cancelledSheet(Hand& hand) {
  hand.press("Create Challenge");
  hand.press("Add Photo");
  hand.sees("Take Photo");
  hand.press("Cancel");
  hand.seesNoMore("Take Photo");
  hand.press("Cancel");
  hand.reads("New Challenges");
}

}  // namespace

std::vector<Flow> creationFlows() {
  const auto flow = [](const char* name, void (*play)(Hand&)) { return Flow{name, launch, play}; };
  return {flow("CreateFromLibrary", createFromLibrary),
          flow("CreateFromLongLibrary", createFromLongLibrary),
          flow("CreateFromFolder", createFromFolder),
          flow("CreateFromFileChooser", createFromFileChooser),
          flow("CreateWithoutCamera", createWithoutCamera),
          flow("TakeASquare", takeASquare),
          flow("DamagedPicture", damagedPicture),
          flow("CancelledSheet", cancelledSheet)};
}

}  // namespace kindora
