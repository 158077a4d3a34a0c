// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "screens/invite/InviteFriendTableViewController.h"

#include <string_view>

#include "model/Friends.h"
#include "platform/services/Services.h"
#include "screens/badges/BadgesViewController.h"
#include "screens/picker/KindoraTableViewController.h"
#include "tests/support/PhoneFormatsOf.h"
#include "tests/support/app/AppFixture.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

class InviteFriendTableViewControllerTest : public AppFixture {
 protected:
  InviteFriendTableViewControllerTest() {
    installPhoneFormatEnvironment(std::make_shared<PhoneFormatsOf>("US"));
  }

  // Through the picker of a completed challenge, as a user comes here.
  void open() {
    const auto badges =
        std::dynamic_pointer_cast<UINavigationController>(tabs().viewControllers()[1]);
    dynamic_cast<BadgesViewController&>(*badges->topViewController())
        .setChallengeToPassOn(store().inProgressChallenges[0]);
    tabs().setSelectedIndex(1);
    time.advance(0.5);
    picker = std::dynamic_pointer_cast<KindoraTableViewController>(badges->topViewController());
    picker->performSegueWithIdentifier("inviteFriend");
    time.advance(0.5);
    screen =
        std::dynamic_pointer_cast<InviteFriendTableViewController>(badges->topViewController());
    stack = badges;
  }
  [[nodiscard]] UITextField& name() const { return *screen->nameField.lock(); }
  [[nodiscard]] UITextField& number() const { return *screen->numberField.lock(); }
  [[nodiscard]] UITextView& message() const { return *screen->messageField.lock(); }
  [[nodiscard]] bool sendEnabled() const {
    return screen->navigationItem()->rightBarButtonItem()->isEnabled();
  }
  // Types at the caret, a character at a time.
  static void type(UITextInput& field, std::string_view text) {
    for (const char c : text) field.replaceRange(field.selectedRange(), std::string(1, c));
  }
  static void backspace(UITextInput& field) {
    const std::size_t caret = field.selectedRange().location;
    field.replaceRange({caret - 1, 1}, "");
  }
  void fill() {
    type(name(), "Ann");
    type(number(), "4155552671");
    type(message(), "Hi");
  }
  void send() {
    screen->navigationItem()->rightBarButtonItem()->press();
    time.advance(0.3);
  }
  static const std::vector<UserRef>& friends() { return Friends::sharedInstance().friendUsers; }

  std::shared_ptr<KindoraTableViewController> picker;
  std::shared_ptr<InviteFriendTableViewController> screen;
  std::shared_ptr<UINavigationController> stack;
};

TEST_F(InviteFriendTableViewControllerTest, OpensWithNothingToSendAndTheKeyboardOnTheName) {
  open();
  EXPECT_FALSE(sendEnabled());
  EXPECT_TRUE(name().isFirstResponder());
  EXPECT_EQ(message().contentInset(), 0);
}

TEST_F(InviteFriendTableViewControllerTest, ANameThatIsThereLeavesTheKeyboardAlone) {
  open();
  type(name(), "A");
  name().resignFirstResponder();
  screen->viewDidAppear(false);
  EXPECT_FALSE(name().isFirstResponder());
}

TEST_F(InviteFriendTableViewControllerTest, HasAFormatterOfItsOwnForTheLocalesCountry) {
  installPhoneFormatEnvironment(std::make_shared<PhoneFormatsOf>("GB"));
  open();
  EXPECT_NE(screen->phoneFormat.get(), &LuPhoneFormat::instance());
  EXPECT_EQ(screen->phoneFormat->defaultCallingCode(), "44");
}

TEST_F(InviteFriendTableViewControllerTest, CountsDigitsOfAnyScriptAndTheDialledSigns) {
  open();
  for (const char32_t c : std::u32string_view(U"0159+*#,\u0663")) {
    EXPECT_TRUE(screen->phoneChars->characterIsMember(c)) << static_cast<unsigned>(c);
  }
  EXPECT_FALSE(screen->phoneChars->characterIsMember(U'-'));
}

TEST_F(InviteFriendTableViewControllerTest, ReturnLeadsFromNameToNumberToMessage) {
  open();
  EXPECT_FALSE(screen->textFieldShouldReturn(name()));
  EXPECT_TRUE(number().isFirstResponder());
  EXPECT_FALSE(screen->textFieldShouldReturn(number()));
  EXPECT_TRUE(message().isFirstResponder());
  UITextField other;
  EXPECT_FALSE(screen->textFieldShouldReturn(other));
  EXPECT_TRUE(message().isFirstResponder());
}

TEST_F(InviteFriendTableViewControllerTest, ATapOnARowLeadsToItsField) {
  open();
  screen->tableViewDidSelectRowAtIndexPath({2, 0});
  EXPECT_TRUE(message().isFirstResponder());
  screen->tableViewDidSelectRowAtIndexPath({1, 0});
  EXPECT_TRUE(number().isFirstResponder());
  screen->tableViewDidSelectRowAtIndexPath({0, 0});
  EXPECT_TRUE(name().isFirstResponder());
  screen->tableViewDidSelectRowAtIndexPath({3, 0});
  EXPECT_TRUE(name().isFirstResponder());
}

// --- The number ---

TEST_F(InviteFriendTableViewControllerTest, LaysTheNumberOutAsItIsTyped) {
  open();
  const std::vector<std::pair<std::string, std::string>> keys{{"4", "4"},
                                                              {"1", "41"},
                                                              {"5", "415"},
                                                              {"5", "415-5"},
                                                              {"5", "415-55"},
                                                              {"5", "415-555"},
                                                              {"2", "415-5552"},
                                                              {"6", "(415) 555-26"},
                                                              {"7", "(415) 555-267"},
                                                              {"1", "(415) 555-2671"}};
  for (const auto& [key, text] : keys) {
    type(number(), key);
    EXPECT_EQ(number().text(), text);
    EXPECT_EQ(number().selectedRange(), (NSRange{utf16Length(text), 0})) << text;
  }
}

TEST_F(InviteFriendTableViewControllerTest, IsBlackOnceTheNumberIsWholeAndRedOtherwise) {
  open();
  type(number(), "415555267");
  EXPECT_EQ(number().textColor(), theme::kDanger);
  type(number(), "1");
  EXPECT_EQ(number().textColor(), UIColor::blackColor());
  type(number(), "9");
  EXPECT_EQ(number().textColor(), theme::kDanger);
}

TEST_F(InviteFriendTableViewControllerTest, TheSelectionSaysWhatIsReplacedNotTheRange) {
  open();
  number().setText("(415) 555-2671");
  number().setSelectedRange({0, 14});
  EXPECT_FALSE(screen->textFieldShouldChangeCharactersInRange(number(), {3, 1}, "2125550100"));
  EXPECT_EQ(number().text(), "(212) 555-0100");
  EXPECT_EQ(number().selectedRange(), (NSRange{14, 0}));
  EXPECT_EQ(number().textColor(), UIColor::blackColor());
}

TEST_F(InviteFriendTableViewControllerTest, AnEditThatLayoutLeavesAloneIsTheFieldsToCarryOut) {
  open();
  EXPECT_TRUE(screen->textFieldShouldChangeCharactersInRange(number(), {0, 0}, "4"));
  EXPECT_EQ(number().text(), "");
  EXPECT_EQ(number().textColor(), theme::kDanger);
}

TEST_F(InviteFriendTableViewControllerTest, BackspacesPassSeparators) {
  open();
  number().setText("(415) 555-2671");
  number().setSelectedRange({10, 0});
  backspace(number());
  EXPECT_EQ(number().text(), "(415) 555-2671");
  EXPECT_EQ(number().selectedRange(), (NSRange{9, 0}));
  backspace(number());
  EXPECT_EQ(number().text(), "(415) 552-671");
  EXPECT_EQ(number().selectedRange(), (NSRange{8, 0}));
}

// --- Send ---

TEST_F(InviteFriendTableViewControllerTest, TheNamesFirstLetterCountsOneEditLate) {
  open();
  type(number(), "4155552671");
  type(message(), "Hi");
  type(name(), "A");
  EXPECT_FALSE(sendEnabled());
  type(name(), "n");
  EXPECT_TRUE(sendEnabled());
}

TEST_F(InviteFriendTableViewControllerTest, DeletingTheNamesLastLetterIsNoticedOneEditLate) {
  open();
  fill();
  backspace(name());
  backspace(name());
  backspace(name());
  EXPECT_EQ(name().text(), "");
  EXPECT_TRUE(sendEnabled());
  send();
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(screen->invitedFriend, nullptr);
  type(message(), "!");
  EXPECT_FALSE(sendEnabled());
}

TEST_F(InviteFriendTableViewControllerTest, TheMessagesFirstLetterCountsAtOnce) {
  open();
  type(name(), "Ann");
  type(number(), "4155552671");
  EXPECT_FALSE(sendEnabled());
  type(message(), "H");
  EXPECT_TRUE(sendEnabled());
}

TEST_F(InviteFriendTableViewControllerTest, ANumberThatIsNoneCannotBeSentTo) {
  open();
  fill();
  EXPECT_TRUE(sendEnabled());
  type(number(), "9");
  EXPECT_FALSE(sendEnabled());
}

TEST_F(InviteFriendTableViewControllerTest, APastedNumberThatIsPlainCountsOneEditLate) {
  open();
  type(name(), "Ann");
  type(message(), "Hi");
  number().replaceRange({0, 0}, "(415) 555-2671");
  EXPECT_FALSE(sendEnabled());
  type(message(), "!");
  EXPECT_TRUE(sendEnabled());
}

TEST_F(InviteFriendTableViewControllerTest, APastedNumberThatIsLaidOutCountsAtOnce) {
  open();
  type(name(), "Ann");
  type(message(), "Hi");
  number().replaceRange({0, 0}, "4155552671");
  EXPECT_TRUE(sendEnabled());
}

// --- Sending ---

TEST_F(InviteFriendTableViewControllerTest, SendingAddsTheFriendAtOnce) {
  open();
  const std::size_t before = friends().size();
  fill();
  send();
  ASSERT_EQ(friends().size(), before + 1);
  EXPECT_EQ(friends().back(), screen->invitedFriend);
  EXPECT_EQ(friends().back()->name, "Ann (Invited)");
  EXPECT_EQ(friends().back()->picture, services().bundle->imageNamed("placeholderImage"));
  EXPECT_EQ(friends().back()->pictureURL, std::nullopt);
  EXPECT_FALSE(name().isFirstResponder() || number().isFirstResponder() ||
               message().isFirstResponder());
}

TEST_F(InviteFriendTableViewControllerTest, TheNameIsNotTrimmed) {
  open();
  type(number(), "4155552671");
  type(message(), "Hi");
  type(name(), "  Al ");
  send();
  EXPECT_EQ(screen->invitedFriend->name, "  Al  (Invited)");
}

TEST_F(InviteFriendTableViewControllerTest, ANameOfBlanksIsAName) {
  open();
  type(number(), "4155552671");
  type(message(), "Hi");
  type(name(), "  ");
  EXPECT_TRUE(sendEnabled());
  send();
  EXPECT_EQ(screen->invitedFriend->name, "   (Invited)");
}

TEST_F(InviteFriendTableViewControllerTest, WithoutAPlaceholderTheFriendHasNoPicture) {
  fakes.bundle->setMissing("placeholderImage");
  open();
  fill();
  send();
  EXPECT_EQ(screen->invitedFriend->picture, nullptr);
}

TEST_F(InviteFriendTableViewControllerTest, TheSameNameTwiceIsTwoFriends) {
  open();
  fill();
  const std::size_t before = friends().size();
  screen->sendInvite();
  screen->sendInvite();
  EXPECT_EQ(friends().size(), before + 2);
}

TEST_F(InviteFriendTableViewControllerTest, AnnouncesItForTwoSecondsAndThenGoesBackToThePicker) {
  open();
  fill();
  screen->sendInvite();
  time.advance(0.3);
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->titleText(), "Invitation sent!");
  EXPECT_EQ(alert()->message(), std::nullopt);
  EXPECT_TRUE(alert()->actions().empty());
  time.advance(1.69);
  EXPECT_EQ(alert()->presentationProgress(), 1);
  time.advance(0.2);
  EXPECT_EQ(stack->topViewController(), screen);
  time.advance(0.5);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_EQ(stack->topViewController(), picker);
}

TEST_F(InviteFriendTableViewControllerTest, ThePickerListsTheInvitedFriendLastAndKeepsItsTicks) {
  open();
  const UserRef ticked = picker->displayFriends.front();
  picker->tableViewDidSelectRowAtIndexPath({0, 0});
  fill();
  screen->sendInvite();
  time.advance(3);
  EXPECT_EQ(picker->displayFriends.back()->name, "Ann (Invited)");
  EXPECT_EQ(picker->chosenFriends, std::set<UserRef>{ticked});
}

TEST_F(InviteFriendTableViewControllerTest, GoingBackInvitesNobody) {
  open();
  const std::size_t before = friends().size();
  fill();
  EXPECT_TRUE(delegate().window->goBack());
  time.advance(0.5);
  EXPECT_EQ(friends().size(), before);
}

TEST_F(InviteFriendTableViewControllerTest, AnOutletThatIsNotConnectedStops) {
  const auto orphan = makeViewController<InviteFriendTableViewController>();
  EXPECT_DEATH(orphan->loadViewIfNeeded(), "fatal error: an outlet is not connected");
}

}  // namespace
}  // namespace kindora
