// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/create/CreateChallengeTableViewController.h"

#include "screens/picker/KindoraTableViewController.h"
#include "tests/support/app/AppFixture.h"

namespace kindora {
namespace {

using Source = UIImagePickerControllerSourceType;

constexpr UIColor kWellColor{199.0 / 255, 199.0 / 255, 205.0 / 255, 1};
constexpr IndexPath kPhotoRow{2, 0};

class CreateChallengeTableViewControllerTest : public AppFixture {
 protected:
  CreateChallengeTableViewControllerTest() { open(); }

  // Opens the screen from the list and waits until it is all the way in.
  void open() {
    navigation().topViewController()->navigationItem()->rightBarButtonItem()->press();
    time.advance(0.5);
    stack = std::dynamic_pointer_cast<UINavigationController>(tabs().presentedViewController());
    screen =
        std::dynamic_pointer_cast<CreateChallengeTableViewController>(stack->topViewController());
  }
  [[nodiscard]] bool isOpen() const { return tabs().presentedViewController() == stack; }
  // The sheet or alert above the screen.
  [[nodiscard]] std::shared_ptr<UIAlertController> asked() const {
    return std::dynamic_pointer_cast<UIAlertController>(stack->presentedViewController());
  }
  [[nodiscard]] std::shared_ptr<UIImagePickerController> picker() const {
    return std::dynamic_pointer_cast<UIImagePickerController>(stack->presentedViewController());
  }
  [[nodiscard]] std::vector<std::string> actions() const {
    std::vector<std::string> titles;
    for (const auto& action : asked()->actions()) titles.push_back(action.title);
    return titles;
  }
  [[nodiscard]] std::shared_ptr<UITextField> title() const {
    return screen->challengeTitleField.lock();
  }
  [[nodiscard]] std::shared_ptr<UITextField> description() const {
    return screen->challengeDescriptionField.lock();
  }
  [[nodiscard]] std::shared_ptr<UIImageView> well() const {
    return screen->challengeImageView.lock();
  }
  [[nodiscard]] bool createEnabled() const {
    return screen->navigationItem()->rightBarButtonItem()->isEnabled();
  }
  static UIImageRef photo() { return UIImage::imageWithRaster(Raster(4, 4)); }
  // What the user leaves in a field.
  static void write(UITextField& field, std::string_view text) {
    field.replaceRange({0, utf16Length(field.text())}, text);
  }
  void fill() {
    write(*title(), "Wave");
    write(*description(), "Wave at a stranger.");
    pick({.editedImage = photo()});
  }
  void openPicker(int action = 1) {
    screen->pressRow(2);
    time.advance(0.3);
    asked()->choose(action);
    time.advance(0.8);
  }
  void pick(const UIImagePickerInfo& info) {
    openPicker();
    picker()->finish(info);
    time.advance(0.5);
  }
  void create() {
    screen->navigationItem()->rightBarButtonItem()->press();
    time.advance(0.3);
  }

  std::shared_ptr<UINavigationController> stack;
  std::shared_ptr<CreateChallengeTableViewController> screen;
  static constexpr int kLater = 0;
  static constexpr int kKindora = 1;
};

// --- Opening ---

TEST_F(CreateChallengeTableViewControllerTest, OpensModallyFromThePlusButtonOfTheList) {
  const auto& plus = navigation().topViewController()->navigationItem()->rightBarButtonItem();
  EXPECT_EQ(plus->imageName(), QStringLiteral("plus"));
  EXPECT_EQ(plus->title(), QStringLiteral("Create Challenge"));
  EXPECT_TRUE(isOpen());
  EXPECT_EQ(screen->navigationController(), stack.get());
  EXPECT_EQ(screen->presentingViewController(), &tabs());
}

TEST_F(CreateChallengeTableViewControllerTest, OpensFromTheBadgesToo) {
  screen->cancel();
  time.advance(0.5);
  tabs().setSelectedIndex(1);
  const auto& badges =
      dynamic_cast<UINavigationController&>(*tabs().viewControllers()[1]).topViewController();
  badges->navigationItem()->rightBarButtonItem()->press();
  time.advance(0.5);
  EXPECT_NE(tabs().presentedViewController(), nullptr);
}

TEST_F(CreateChallengeTableViewControllerTest, HasCancelAndCreateInItsBar) {
  EXPECT_EQ(screen->navigationItem()->leftBarButtonItem()->title(), QStringLiteral("Cancel"));
  EXPECT_EQ(screen->navigationItem()->rightBarButtonItem()->title(), QStringLiteral("Create"));
}

TEST_F(CreateChallengeTableViewControllerTest, HasThreeSectionsOfOneRow) {
  EXPECT_EQ(screen->sectionTitles(),
            (QStringList{QStringLiteral("Title"), QStringLiteral("Description"),
                         QStringLiteral("Photo")}));
}

TEST_F(CreateChallengeTableViewControllerTest, BeginsEmptyWithAWellForThePhoto) {
  EXPECT_EQ(title()->text(), "");
  EXPECT_EQ(description()->text(), "");
  EXPECT_EQ(screen->selectedImage, nullptr);
  EXPECT_FALSE(createEnabled());
  const UIImageRef plus = fakes.bundle->imageNamed("plus");
  EXPECT_EQ(well()->image()->renderingMode(), UIImageRenderingMode::alwaysTemplate);
  EXPECT_EQ(well()->image()->size(), plus->size());
  EXPECT_EQ(well()->tintColor(), kWellColor);
  EXPECT_EQ(well()->border(), (UIViewBorder{kWellColor, 2}));
  EXPECT_EQ(well()->state().cornerRadius, 25);
  EXPECT_TRUE(well()->clipsToBounds());
}

TEST_F(CreateChallengeTableViewControllerTest, OpensWithoutItsPictureToo) {
  screen->cancel();
  time.advance(0.5);
  fakes.bundle->setMissing("plus");
  open();
  EXPECT_EQ(well()->image(), nullptr);
}

// --- Keyboard ---

TEST_F(CreateChallengeTableViewControllerTest, TheTitleHasTheKeyboardAtFirst) {
  EXPECT_TRUE(title()->isFirstResponder());
}

TEST_F(CreateChallengeTableViewControllerTest, TheTitleHasTheKeyboardAgainAfterThePicker) {
  description()->becomeFirstResponder();
  pick({.editedImage = photo()});
  EXPECT_TRUE(title()->isFirstResponder());
}

TEST_F(CreateChallengeTableViewControllerTest, ReturnGoesFromTitleToDescriptionAndThenAway) {
  title()->pressReturn();
  EXPECT_TRUE(description()->isFirstResponder());
  description()->pressReturn();
  EXPECT_FALSE(title()->isFirstResponder());
  EXPECT_FALSE(description()->isFirstResponder());
}

TEST_F(CreateChallengeTableViewControllerTest, ARowGivesItsFieldTheKeyboard) {
  screen->pressRow(1);
  EXPECT_TRUE(description()->isFirstResponder());
  screen->pressRow(0);
  EXPECT_TRUE(title()->isFirstResponder());
  EXPECT_EQ(stack->presentedViewController(), nullptr);
}

TEST_F(CreateChallengeTableViewControllerTest, ThePhotoRowEndsEditingAndAsksForASource) {
  screen->pressRow(2);
  EXPECT_FALSE(title()->isFirstResponder());
  time.advance(0.3);
  ASSERT_NE(asked(), nullptr);
}

// --- Source sheet ---

TEST_F(CreateChallengeTableViewControllerTest, TheSheetOffersBothSourcesAndCancel) {
  well()->setFrame({{0, 0}, {160, 160}});
  screen->pickPhoto();
  time.advance(0.3);
  EXPECT_EQ(asked()->preferredStyle(), UIAlertControllerStyle::actionSheet);
  EXPECT_EQ(asked()->titleText(), std::nullopt);
  EXPECT_EQ(asked()->message(), std::nullopt);
  EXPECT_EQ(actions(), (std::vector<std::string>{"Take Photo", "Choose Existing", "Cancel"}));
  EXPECT_EQ(asked()->actions()[0].style, UIAlertActionStyle::normal);
  EXPECT_EQ(asked()->actions()[1].style, UIAlertActionStyle::normal);
  EXPECT_EQ(asked()->actions()[2].style, UIAlertActionStyle::cancel);
  EXPECT_EQ(asked()->popoverAnchor().sourceView.lock(), well());
  EXPECT_EQ(asked()->popoverAnchor().sourceRect, (CGRect{{0, 0}, {160, 160}}));
}

TEST_F(CreateChallengeTableViewControllerTest, TheSheetGoesBeforeThePickerComes) {
  screen->pressRow(2);
  time.advance(0.3);
  asked()->choose(1);
  EXPECT_EQ(picker(), nullptr);
  time.advance(0.24);
  EXPECT_EQ(picker(), nullptr);
  time.advance(0.02);
  EXPECT_NE(picker(), nullptr);
}

TEST_F(CreateChallengeTableViewControllerTest, TakePhotoOpensTheCameraWithoutAskingForOne) {
  EXPECT_FALSE(fakes.photos->camera);
  openPicker(0);
  ASSERT_NE(picker(), nullptr);
  EXPECT_EQ(picker()->sourceType(), Source::camera);
  EXPECT_TRUE(picker()->allowsEditing());
  EXPECT_EQ(picker()->delegate(), screen);
  EXPECT_EQ(picker()->popoverAnchor().sourceView.lock(), well());
}

TEST_F(CreateChallengeTableViewControllerTest, ChooseExistingOpensTheLibrary) {
  openPicker(1);
  ASSERT_NE(picker(), nullptr);
  EXPECT_EQ(picker()->sourceType(), Source::photoLibrary);
  EXPECT_TRUE(picker()->allowsEditing());
  EXPECT_EQ(picker()->delegate(), screen);
}

TEST_F(CreateChallengeTableViewControllerTest, ACancelledSheetMayBeOpenedAgain) {
  openPicker(2);
  EXPECT_EQ(stack->presentedViewController(), nullptr);
  EXPECT_EQ(screen->tableView()->indexPathForSelectedRow(), std::nullopt);
  screen->pressRow(2);
  time.advance(0.3);
  EXPECT_NE(asked(), nullptr);
}

// --- Photo ---

TEST_F(CreateChallengeTableViewControllerTest, ThePhotoRowStaysSelectedUntilThePickerIsDone) {
  openPicker();
  EXPECT_EQ(screen->tableView()->indexPathForSelectedRow(), kPhotoRow);
  picker()->finish({.editedImage = photo()});
  EXPECT_EQ(screen->tableView()->indexPathForSelectedRow(), std::nullopt);
  time.advance(0.5);
  EXPECT_EQ(picker(), nullptr);
}

TEST_F(CreateChallengeTableViewControllerTest, TheEditedImageCountsAndFillsTheWell) {
  const UIImageRef edited = photo();
  pick({.originalImage = photo(), .editedImage = edited});
  EXPECT_EQ(screen->selectedImage, edited);
  EXPECT_EQ(well()->image(), edited);
  EXPECT_EQ(well()->image()->renderingMode(), UIImageRenderingMode::automatic);
  EXPECT_EQ(well()->contentMode(), UIViewContentMode::scaleAspectFill);
  EXPECT_EQ(well()->border().width, 0);
}

TEST_F(CreateChallengeTableViewControllerTest, WithoutAnEditedImageNothingButThePickerGoes) {
  const UIImageRef before = well()->image();
  pick({.originalImage = photo()});
  EXPECT_EQ(picker(), nullptr);
  EXPECT_EQ(screen->selectedImage, nullptr);
  EXPECT_EQ(well()->image(), before);
  EXPECT_EQ(well()->border().width, 2);
  EXPECT_EQ(screen->tableView()->indexPathForSelectedRow(), std::nullopt);
}

TEST_F(CreateChallengeTableViewControllerTest, ACancelledPickerKeepsThePhotoChosenBefore) {
  const UIImageRef edited = photo();
  pick({.editedImage = edited});
  openPicker();
  picker()->cancel();
  time.advance(0.5);
  EXPECT_EQ(picker(), nullptr);
  EXPECT_EQ(screen->selectedImage, edited);
  EXPECT_EQ(well()->image(), edited);
  EXPECT_EQ(screen->tableView()->indexPathForSelectedRow(), std::nullopt);
}

TEST_F(CreateChallengeTableViewControllerTest, AnotherPhotoReplacesTheFirst) {
  pick({.editedImage = photo()});
  const UIImageRef second = photo();
  pick({.editedImage = second});
  EXPECT_EQ(screen->selectedImage, second);
  EXPECT_EQ(well()->image(), second);
}

// --- Create button ---

TEST_F(CreateChallengeTableViewControllerTest, CreateWantsBothTextsAndAPhoto) {
  write(*title(), "Wave");
  EXPECT_FALSE(createEnabled());
  write(*description(), "Wave at a stranger.");
  EXPECT_FALSE(createEnabled());
  pick({.editedImage = photo()});
  EXPECT_TRUE(createEnabled());
}

TEST_F(CreateChallengeTableViewControllerTest, ThePhotoAloneIsNotEnough) {
  pick({.editedImage = photo()});
  EXPECT_FALSE(createEnabled());
  write(*title(), "Wave");
  EXPECT_FALSE(createEnabled());
  write(*description(), "Wave at a stranger.");
  EXPECT_TRUE(createEnabled());
}

TEST_F(CreateChallengeTableViewControllerTest, RemovingAllOfEitherTextDisablesCreateAgain) {
  fill();
  write(*title(), "");
  EXPECT_FALSE(createEnabled());
  write(*title(), "a");
  EXPECT_TRUE(createEnabled());
  write(*description(), "");
  EXPECT_FALSE(createEnabled());
}

TEST_F(CreateChallengeTableViewControllerTest, BlanksAreATextToo) {
  fill();
  write(*title(), "   ");
  write(*description(), "\u3000");
  EXPECT_TRUE(createEnabled());
}

TEST_F(CreateChallengeTableViewControllerTest, TextThatAnInputMethodComposesCounts) {
  write(*description(), "Wave at a stranger.");
  pick({.editedImage = photo()});
  title()->setMarkedText({0, 0}, "に");
  EXPECT_TRUE(createEnabled());
  title()->discardMarkedText();
  EXPECT_FALSE(createEnabled());
}

// --- Creating ---

TEST_F(CreateChallengeTableViewControllerTest, CreatingStoresTheChallengeBeforeItAsks) {
  fill();
  const std::size_t before = store().completedChallenges.size();
  screen->createChallenge();
  ASSERT_EQ(store().completedChallenges.size(), before + 1);
  const ChallengeRef& made = store().completedChallenges.front();
  EXPECT_TRUE(made->created);
  EXPECT_EQ(made->title, "Wave");
  EXPECT_EQ(made->description, "Wave at a stranger.");
  EXPECT_EQ(made->challengeImage, screen->selectedImage);
  EXPECT_EQ(made->sender, nullptr);
  EXPECT_FALSE(made->passedOn);
  EXPECT_EQ(made->numSincePassedOn, 0);
}

TEST_F(CreateChallengeTableViewControllerTest, CreatingEndsEditing) {
  fill();
  EXPECT_TRUE(title()->isFirstResponder());
  screen->createChallenge();
  EXPECT_FALSE(title()->isFirstResponder());
}

TEST_F(CreateChallengeTableViewControllerTest, TextsAreTrimmedAtBothEndsAndKeptInside) {
  fill();
  write(*title(), "  Smile  a lot  ");
  write(*description(), "Do it\n");
  create();
  EXPECT_EQ(store().completedChallenges.front()->title, "Smile  a lot");
  EXPECT_EQ(store().completedChallenges.front()->description, "Do it");
}

TEST_F(CreateChallengeTableViewControllerTest, ATitleOfBlanksIsStoredEmptyAndNotAbsent) {
  fill();
  write(*title(), "  \u00A0\u3000 ");
  create();
  EXPECT_EQ(store().completedChallenges.front()->title, std::optional<std::string>(""));
}

TEST_F(CreateChallengeTableViewControllerTest, AsksWhetherToPassItOn) {
  fill();
  create();
  EXPECT_EQ(asked()->preferredStyle(), UIAlertControllerStyle::alert);
  EXPECT_EQ(asked()->titleText(), "Challenge created!");
  EXPECT_EQ(asked()->message(),
            "You can find this challenge in the Badges tab. Would you like to pass this challenge "
            "on now?");
  EXPECT_EQ(actions(), (std::vector<std::string>{"Later", "Kindora!"}));
  EXPECT_EQ(asked()->actions()[0].style, UIAlertActionStyle::cancel);
  EXPECT_EQ(asked()->actions()[1].style, UIAlertActionStyle::normal);
}

TEST_F(CreateChallengeTableViewControllerTest, LaterGoesBackToTheList) {
  fill();
  create();
  asked()->choose(kLater);
  time.advance(0.26);
  EXPECT_TRUE(isOpen());
  EXPECT_GT(stack->presentationProgress(), 0.5);
  time.advance(0.4);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(tabs().selectedIndex(), 0);
}

TEST_F(CreateChallengeTableViewControllerTest, KindoraHandsTheChallengeToTheBadges) {
  fill();
  create();
  const ChallengeRef made = store().completedChallenges.front();
  asked()->choose(kKindora);
  time.advance(0.7);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(tabs().selectedIndex(), 1);
  const auto& badges =
      dynamic_cast<UINavigationController&>(*tabs().viewControllers()[1]).viewControllers();
  ASSERT_EQ(badges.size(), 3U);
  EXPECT_EQ(dynamic_cast<KindoraTableViewController&>(*badges.back()).challenge, made);
}

TEST_F(CreateChallengeTableViewControllerTest, CreatingRaisesNoBadgeOnTheTab) {
  fill();
  create();
  asked()->choose(kLater);
  time.advance(0.7);
  EXPECT_TRUE(tabs().viewControllers()[1]->tabBarItem()->badgeValue().isNull());
}

// --- Cancelling ---

TEST_F(CreateChallengeTableViewControllerTest, CancelLeavesAndStoresNothing) {
  fill();
  const auto before = store().completedChallenges;
  screen->navigationItem()->leftBarButtonItem()->press();
  EXPECT_TRUE(isOpen());  // it leaves animated
  time.advance(0.5);
  EXPECT_FALSE(isOpen());
  EXPECT_EQ(store().completedChallenges, before);
}

TEST_F(CreateChallengeTableViewControllerTest, GoingBackCancels) {
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_FALSE(isOpen());
}

TEST_F(CreateChallengeTableViewControllerTest, ACancelledScreenOpensEmptyAgain) {
  fill();
  screen->cancel();
  time.advance(0.5);
  open();
  EXPECT_EQ(title()->text(), "");
  EXPECT_EQ(screen->selectedImage, nullptr);
}

// --- Outlets ---

using CreateChallengeTableViewControllerDeathTest = CreateChallengeTableViewControllerTest;

TEST_F(CreateChallengeTableViewControllerDeathTest, AnOutletThatIsNotConnectedStops) {
  const auto bare = makeViewController<CreateChallengeTableViewController>();
  EXPECT_DEATH(bare->viewDidLoad(), "^fatal error: an outlet is not connected\n");
  EXPECT_DEATH(bare->viewDidAppear(true), "^fatal error: an outlet is not connected\n");
  EXPECT_DEATH(bare->enableCreate(), "^fatal error: an outlet is not connected\n");
  EXPECT_DEATH(bare->pickPhoto(), "^fatal error: an outlet is not connected\n");
  EXPECT_DEATH(bare->createChallenge(), "^fatal error: an outlet is not connected\n");
}

}  // namespace
}  // namespace kindora
