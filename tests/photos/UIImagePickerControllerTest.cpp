// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "photos/UIImagePickerController.h"

#include "photos/CameraController.h"
#include "photos/PhotoCropController.h"
#include "photos/PhotoFolderController.h"
#include "photos/PhotoLibraryController.h"
#include "platform/fakes/FakeServices.h"
#include "tests/toolkit/controllers/ToolkitFixture.h"
#include "toolkit/controllers/UIAlertController.h"
#include "toolkit/quick/ImageHandle.h"

namespace kindora {
namespace {

using Source = UIImagePickerControllerSourceType;

// Writes down how the picker ended, and dismisses it.
class Delegate final : public UIImagePickerControllerDelegate {
 public:
  void imagePickerController(UIImagePickerController& picker,
                             const UIImagePickerInfo& info) override {
    picked.push_back(info);
    picker.dismissViewController(true);
  }
  void imagePickerControllerDidCancel(UIImagePickerController& picker) override {
    ++cancelled;
    picker.dismissViewController(true);
  }
  std::vector<UIImagePickerInfo> picked;
  int cancelled = 0;
};

UIImageRef picture(std::size_t width, std::size_t height) {
  return UIImage::imageWithRaster(Raster(width, height));
}

class UIImagePickerControllerTest : public ToolkitFixture {
 protected:
  UIImagePickerControllerTest() {
    show(presenter);
    fakes.photos->addPhoto("/p/new.png", first);
    fakes.photos->addPhoto("/p/broken.png", nullptr);
  }

  // The picker on the screen, all the way in.
  void present(Source source, bool editing = true) {
    picker = makeViewController<UIImagePickerController>(source);
    picker->setDelegate(delegate);
    picker->setAllowsEditing(editing);
    presenter->presentViewController(picker, true);
    advance(0.5);
  }
  void advance(double seconds) {
    fakes.mainQueue->runPending();
    time.advance(seconds);
    fakes.mainQueue->runPending();
    time.settle();
  }
  template <typename Page>
  [[nodiscard]] Page* top() const {
    return dynamic_cast<Page*>(picker->topViewController().get());
  }
  [[nodiscard]] UIAlertController* alert() const {
    return dynamic_cast<UIAlertController*>(picker->presentedViewController().get());
  }
  // Picks the first picture of the library and lets the square come in.
  PhotoCropController& reachCrop() {
    present(Source::photoLibrary);
    top<PhotoLibraryController>()->choose(0);
    advance(0.5);
    return *top<PhotoCropController>();
  }
  [[nodiscard]] bool gone() const { return presenter->presentedViewController() == nullptr; }

  FakeServices fakes = installFakeServices();
  const UIImageRef first = picture(80, 40);
  const std::shared_ptr<RecordingController> presenter = screen("presenter");
  const std::shared_ptr<Delegate> delegate = std::make_shared<Delegate>();
  std::shared_ptr<UIImagePickerController> picker;
};

// --- The library ---

TEST_F(UIImagePickerControllerTest, TheLibraryShowsTheUsersPictures) {
  present(Source::photoLibrary);
  EXPECT_EQ(picker->sourceType(), Source::photoLibrary);
  auto* const library = top<PhotoLibraryController>();
  ASSERT_NE(library, nullptr);
  EXPECT_TRUE(library->showsGrid());
  EXPECT_EQ(library->photos()->count(), 2);
  EXPECT_EQ(library->photos()->file(0).name, "new.png");
}

TEST_F(UIImagePickerControllerTest, ThumbnailsAreReadWhenTheyComeIntoSight) {
  present(Source::photoLibrary);
  EXPECT_TRUE(fakes.photos->read.empty());
  PhotoList& photos = *top<PhotoLibraryController>()->photos();
  const auto thumbnail = [&] {
    return photos.data(photos.index(0), photos.roleNames().key("thumbnail"))
        .value<ImageHandle>()
        .image;
  };
  photos.show(0);
  photos.show(0);
  EXPECT_EQ(thumbnail(), nullptr);
  advance(0);
  EXPECT_EQ(thumbnail(), first);
  EXPECT_EQ(fakes.photos->read.size(), 1U);
  photos.hide(0);
  EXPECT_EQ(thumbnail(), nullptr);
}

TEST_F(UIImagePickerControllerTest, AThumbnailOfARowThatLeftIsDropped) {
  present(Source::photoLibrary);
  PhotoList& photos = *top<PhotoLibraryController>()->photos();
  photos.show(0);
  photos.hide(0);
  advance(0);
  EXPECT_EQ(
      photos.data(photos.index(0), photos.roleNames().key("thumbnail")).value<ImageHandle>().image,
      nullptr);
}

TEST_F(UIImagePickerControllerTest, APictureIsReadAtTwelveHundredPixelsAndGoesToTheSquare) {
  const PhotoCropController& crop = reachCrop();
  EXPECT_EQ(crop.image().image, first);
  ASSERT_EQ(fakes.photos->read.size(), 1U);
  EXPECT_EQ(fakes.photos->read[0], (std::pair<std::string, int>("/p/new.png", 1200)));
}

TEST_F(UIImagePickerControllerTest, WithoutEditingAPictureIsPickedAsItIs) {
  present(Source::photoLibrary, false);
  top<PhotoLibraryController>()->choose(0);
  advance(0.5);
  ASSERT_EQ(delegate->picked.size(), 1U);
  EXPECT_EQ(delegate->picked[0].originalImage, first);
  EXPECT_EQ(delegate->picked[0].editedImage, nullptr);
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, TwoQuickTapsOpenOnePicture) {
  present(Source::photoLibrary);
  top<PhotoLibraryController>()->choose(0);
  EXPECT_TRUE(top<PhotoLibraryController>()->isOpening());
  top<PhotoLibraryController>()->choose(0);
  advance(0.5);
  EXPECT_EQ(fakes.photos->read.size(), 1U);
  EXPECT_EQ(picker->viewControllers().size(), 2U);
}

TEST_F(UIImagePickerControllerTest, AnUnreadablePictureIsAnsweredAndAnotherMayBeChosen) {
  present(Source::photoLibrary);
  top<PhotoLibraryController>()->choose(1);
  advance(0.5);
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "This picture cannot be opened.");
  alert()->choose(0);
  advance(0.5);
  EXPECT_TRUE(delegate->picked.empty());
  EXPECT_EQ(delegate->cancelled, 0);
  EXPECT_FALSE(top<PhotoLibraryController>()->isOpening());
  top<PhotoLibraryController>()->choose(0);
  advance(0.5);
  EXPECT_NE(top<PhotoCropController>(), nullptr);
}

TEST_F(UIImagePickerControllerTest, APictureThatComesAfterTheUserLeftIsDropped) {
  present(Source::photoLibrary);
  top<PhotoLibraryController>()->choose(0);
  picker->cancel();
  advance(0.5);
  EXPECT_EQ(delegate->cancelled, 1);
  EXPECT_TRUE(delegate->picked.empty());
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, OtherFoldersAreBrowsed) {
  fakes.photos->folders[""] = {{.path = "/home/docs", .name = "docs", .isFolder = true}};
  fakes.photos->folders["/home/docs"] = {{.path = "/p/new.png", .name = "new.png"}};
  present(Source::photoLibrary);
  top<PhotoLibraryController>()->browse();
  advance(0.5);
  ASSERT_NE(top<PhotoFolderController>(), nullptr);
  EXPECT_EQ(top<PhotoFolderController>()->title(), QStringLiteral("Home"));
  top<PhotoFolderController>()->choose(1);
  advance(0.5);
  EXPECT_EQ(top<PhotoFolderController>()->title(), QStringLiteral("docs"));
  EXPECT_TRUE(top<PhotoFolderController>()->isListed());
  top<PhotoFolderController>()->choose(0);
  advance(0.5);
  EXPECT_NE(top<PhotoCropController>(), nullptr);
}

TEST_F(UIImagePickerControllerTest, TheFoldersAboveHomeAreReachedToo) {
  fakes.photos->folders["/"] = {{.path = "/media", .name = "media", .isFolder = true}};
  fakes.photos->folders["/media"] = {{.path = "/p/new.png", .name = "new.png"}};
  present(Source::photoLibrary);
  top<PhotoLibraryController>()->browse();
  advance(0.5);
  EXPECT_EQ(top<PhotoFolderController>()->files()->file(0).name, "All Folders");
  for (const char* title : {"All Folders", "media"}) {
    top<PhotoFolderController>()->choose(0);
    advance(0.5);
    EXPECT_EQ(top<PhotoFolderController>()->title(), QLatin1String(title));
  }
  top<PhotoFolderController>()->choose(0);
  advance(0.5);
  EXPECT_NE(top<PhotoCropController>(), nullptr);
}

TEST_F(UIImagePickerControllerTest, TellsWhilePicturesAreLookedFor) {
  picker = makeViewController<UIImagePickerController>(Source::photoLibrary);
  presenter->presentViewController(picker, false);
  auto* const library = top<PhotoLibraryController>();
  ASSERT_NE(library, nullptr);
  int heard = 0;
  QObject::connect(library, &PhotoLibraryController::stageChanged, [&] {
    if (library->isListing()) ++heard;
    EXPECT_FALSE(library->isListing() && library->showsGrid());
  });
  advance(0.5);
  EXPECT_EQ(heard, 1);
  EXPECT_FALSE(library->isListing());
  EXPECT_TRUE(library->showsGrid());
}

// --- The system's file chooser ---

TEST_F(UIImagePickerControllerTest, TheSystemsFileChooserIsAskedFirst) {
  fakes.photos->fileChooser = true;
  present(Source::photoLibrary);
  EXPECT_TRUE(fakes.photos->isChoosing());
  EXPECT_TRUE(top<PhotoLibraryController>()->choosesElsewhere());
  fakes.photos->answerChoice("/p/new.png");
  advance(0.5);
  EXPECT_NE(top<PhotoCropController>(), nullptr);
}

TEST_F(UIImagePickerControllerTest, NoChoiceThereCancels) {
  fakes.photos->fileChooser = true;
  present(Source::photoLibrary);
  fakes.photos->answerChoice("");
  advance(0.5);
  EXPECT_EQ(delegate->cancelled, 1);
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, AnUnreadableChoiceThereCancelsAfterTheAlert) {
  fakes.photos->fileChooser = true;
  present(Source::photoLibrary);
  fakes.photos->answerChoice("/p/broken.png");
  advance(0.5);
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(delegate->cancelled, 0);
  alert()->choose(0);
  advance(1);
  EXPECT_EQ(delegate->cancelled, 1);
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, CancellingTakesTheFileChooserBack) {
  fakes.photos->fileChooser = true;
  present(Source::photoLibrary);
  picker->cancel();
  picker.reset();
  advance(0.5);
  EXPECT_FALSE(fakes.photos->isChoosing());
}

// --- The camera ---

TEST_F(UIImagePickerControllerTest, WithoutACameraThereIsAWayToTheLibrary) {
  present(Source::camera);
  EXPECT_EQ(picker->sourceType(), Source::camera);
  ASSERT_NE(top<CameraController>(), nullptr);
  EXPECT_FALSE(top<CameraController>()->isSupported());
  top<CameraController>()->chooseExisting();
  advance(0.5);
  EXPECT_NE(top<PhotoLibraryController>(), nullptr);
  picker->popViewController(true);
  advance(0.5);
  EXPECT_NE(top<CameraController>(), nullptr);
}

TEST_F(UIImagePickerControllerTest, TheCameraRunsWhileItIsSeen) {
  fakes.photos->camera = true;
  present(Source::camera);
  auto* const camera = top<CameraController>();
  EXPECT_TRUE(camera->isSupported());
  EXPECT_TRUE(camera->isRunning());
  camera->chooseExisting();
  EXPECT_FALSE(camera->isRunning());
  advance(0.5);
  picker->popViewController(true);
  advance(0.5);
  EXPECT_TRUE(camera->isRunning());
}

TEST_F(UIImagePickerControllerTest, ATakenPhotoGoesToTheSquare) {
  fakes.photos->camera = true;
  present(Source::camera);
  EXPECT_TRUE(top<CameraController>()->pictureFile().endsWith(QStringLiteral("photo.jpg")));
  top<CameraController>()->photoTaken(QStringLiteral("/p/new.png"));
  advance(0.5);
  EXPECT_NE(top<PhotoCropController>(), nullptr);
}

// --- The square ---

TEST_F(UIImagePickerControllerTest, ChoosingYieldsTheSquareAsTheEditedImage) {
  PhotoCropController& crop = reachCrop();
  crop.setSide(200);
  crop.pan({-1000, 0});
  crop.choose();
  advance(0.5);
  ASSERT_EQ(delegate->picked.size(), 1U);
  EXPECT_EQ(delegate->picked[0].originalImage, first);
  EXPECT_EQ(delegate->picked[0].editedImage->size(), (CGSize{40, 40}));
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, TheSquareTellsThoseWhoDrawItOnceAChange) {
  PhotoCropController& crop = reachCrop();
  int told = 0;
  QObject::connect(&crop, &PhotoCropController::cropChanged, [&told] { ++told; });
  crop.setSide(200);
  crop.setSide(200);
  crop.setSide(0);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(crop.pictureFrame(), QRectF(-100, 0, 400, 200));
  crop.zoomBy(2, {100, 100});
  EXPECT_EQ(told, 2);
  EXPECT_EQ(crop.zoom(), 2);
  EXPECT_EQ(crop.pictureSize(), QSizeF(80, 40));
}

TEST_F(UIImagePickerControllerTest, CancellingAtTheSquareCancelsThePicker) {
  reachCrop().cancel();
  advance(0.5);
  EXPECT_EQ(delegate->cancelled, 1);
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, GoingBackFromTheSquareReturnsToTheLibrary) {
  reachCrop();
  EXPECT_TRUE(window.goBack());
  advance(0.5);
  EXPECT_NE(top<PhotoLibraryController>(), nullptr);
  EXPECT_EQ(delegate->cancelled, 0);
}

// --- Ending ---

TEST_F(UIImagePickerControllerTest, TheBarAndGoingBackCancel) {
  present(Source::photoLibrary);
  const auto& button = picker->topViewController()->navigationItem()->rightBarButtonItem();
  EXPECT_EQ(button->title(), QStringLiteral("Cancel"));
  button->press();
  advance(0.5);
  EXPECT_EQ(delegate->cancelled, 1);
  present(Source::camera);
  EXPECT_TRUE(window.goBack());
  advance(0.5);
  EXPECT_EQ(delegate->cancelled, 2);
  EXPECT_TRUE(gone());
}

TEST_F(UIImagePickerControllerTest, EndsOnlyOnce) {
  PhotoCropController& crop = reachCrop();
  crop.choose();
  crop.choose();
  crop.cancel();
  advance(0.5);
  EXPECT_EQ(delegate->picked.size(), 1U);
  EXPECT_EQ(delegate->cancelled, 0);
}

TEST_F(UIImagePickerControllerTest, WithoutADelegateItDismissesItself) {
  present(Source::photoLibrary);
  picker->setDelegate({});
  picker->cancel();
  advance(0.5);
  EXPECT_TRUE(gone());
  present(Source::photoLibrary, false);
  picker->setDelegate({});
  top<PhotoLibraryController>()->choose(0);
  advance(0.5);
  EXPECT_TRUE(gone());
}

using UIImagePickerControllerDeathTest = UIImagePickerControllerTest;

TEST_F(UIImagePickerControllerDeathTest, APageOutsideThePickerStops) {
  const auto page = makeViewController<CameraController>();
  EXPECT_DEATH(page->goBack(), "^fatal error: a page of the image picker stands outside it\n");
}

}  // namespace
}  // namespace kindora
