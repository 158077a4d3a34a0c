// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "gallery/phone/PhoneNumbersViewController.h"

#include "gallery/phone/CountryTableViewController.h"
#include "tests/gallery/GalleryFixture.h"
#include "tests/support/TableReader.h"
#include "toolkit/view/ThemeValues.h"

namespace kindora {
namespace {

class PhoneNumbersViewControllerTest : public GalleryFixture {
 protected:
  [[nodiscard]] UITextField& field() const { return *screen.numberField.lock(); }
  void type(std::string_view text) {
    for (const char c : text) field().replaceRange(field().selectedRange(), std::string(1, c));
  }
  CountryTableViewController& choose() {
    screen.pressRow(0);
    time.advance(0.5);
    return top<CountryTableViewController>();
  }
  // Searches for the country, of which there must be one, and takes it.
  void take(const std::string& name) {
    auto& choice = choose();
    choice.searchController->searchBar()->press();
    choice.searchController->searchBar()->edit(QString::fromStdString(name));
    ASSERT_EQ(choice.tableViewNumberOfRowsInSection(0), 1);
    choice.tableView()->select(0);
    time.advance(0.5);
  }

  PhoneNumbersViewController& screen = open<PhoneNumbersViewController>(kPhoneRow);
};

TEST_F(PhoneNumbersViewControllerTest, OpensInTheCountryOfTheEnvironment) {
  EXPECT_EQ(screen.country().code, "us");
  EXPECT_EQ(screen.countryName(), QStringLiteral("United States"));
  EXPECT_EQ(screen.callingCode(), QStringLiteral("+1"));
  EXPECT_EQ(screen.verdict(), QStringLiteral("No number yet"));
}

TEST_F(PhoneNumbersViewControllerTest, LaysOutAndJudgesWhatIsTyped) {
  type("415555267");
  EXPECT_EQ(field().text(), "(415) 555-267");
  EXPECT_EQ(screen.verdict(), QStringLiteral("Not a valid number"));
  EXPECT_EQ(field().textColor(), theme::kDanger);
  EXPECT_EQ(screen.international(), QString());
  type("1");
  EXPECT_EQ(field().text(), "(415) 555-2671");
  EXPECT_EQ(screen.verdict(), QStringLiteral("A valid number"));
  EXPECT_EQ(field().textColor(), UIColor::blackColor());
  EXPECT_EQ(screen.international(), QStringLiteral("+1 415-555-2671"));
}

TEST_F(PhoneNumbersViewControllerTest, TheCaretStaysBehindItsDigit) {
  type("4155552671");
  field().setSelectedRange({10, 0});
  field().replaceRange({9, 1}, "");
  EXPECT_EQ(field().text(), "(415) 555-2671");
  EXPECT_EQ(field().selectedRange(), (NSRange{9, 0}));
}

TEST_F(PhoneNumbersViewControllerTest, AnotherCountryLaysTheDigitsOutAnew) {
  type("02071234567");
  EXPECT_FALSE(screen.isValid());
  take("United Kingdom");
  EXPECT_EQ(navigation->topViewController().get(), &screen);
  EXPECT_EQ(screen.callingCode(), QStringLiteral("+44"));
  EXPECT_EQ(field().text(), "020 7123 4567");
  EXPECT_TRUE(screen.isValid());
  EXPECT_EQ(screen.international(), QStringLiteral("+44 20 7123 4567"));
}

TEST_F(PhoneNumbersViewControllerTest, TheChoiceTicksTheCountry) {
  auto& choice = choose();
  const TableReader reader(*choice.tableView());
  int ticked = 0;
  for (int row = 0; row < reader.count(); ++row) {
    if (reader.cell(row)->hasCheckmark()) ++ticked;
  }
  EXPECT_EQ(ticked, 1);
}

TEST_F(PhoneNumbersViewControllerTest, LeavingTheChoiceChangesNothing) {
  choose();
  navigation->popViewController(false);
  EXPECT_EQ(screen.country().code, "us");
}

TEST_F(PhoneNumbersViewControllerTest, AnUnknownCountryOfTheEnvironmentGivesTheFirst) {
  installPhoneFormatEnvironment(std::make_shared<PhoneFormatsOf>("zz"));
  const PhoneNumbersViewController elsewhere;
  EXPECT_EQ(elsewhere.country(), elsewhere.countries().front());
}

}  // namespace
}  // namespace kindora
