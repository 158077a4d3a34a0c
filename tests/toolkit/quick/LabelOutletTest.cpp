// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include <QFont>
#include <cmath>

#include "platform/fakes/FakeViewServices.h"
#include "tests/toolkit/quick/OutletFixture.h"
#include "toolkit/quick/Appearance.h"
#include "toolkit/quick/QtViewServices.h"
#include "toolkit/view/UILabel.h"

namespace kindora {
namespace {

class LabelOutletTest : public OutletFixture {
 protected:
  void drawLabel(const QByteArray& page = {}) {
    draw("LabelOutlet", QStringLiteral("label"), page);
  }
  [[nodiscard]] QVariant drawn(const char* property) const { return inner->property(property); }
  [[nodiscard]] int points() const { return drawn("font").value<QFont>().pixelSize(); }

  const std::shared_ptr<UILabel> label = owner.make<UILabel>("label");
};

TEST_F(LabelOutletTest, ShowsWhatTheControllerChose) {
  label->setText("Hello");
  label->setFont(UIFont::systemFontOfSize(31));
  label->setTextColor(kRedColor);
  label->setTextAlignment(NSTextAlignment::right);
  drawLabel();
  EXPECT_EQ(drawn("text").toString(), QStringLiteral("Hello"));
  EXPECT_EQ(points(), 31);
  EXPECT_EQ(drawn("color").value<QColor>(), QColor(Qt::red));
  EXPECT_EQ(drawn("horizontalAlignment").toInt(), Qt::AlignRight);
}

TEST_F(LabelOutletTest, ShowsWhatThePageChoseWhereTheControllerLeavesItOpen) {
  drawLabel("points: 24; color: '#00ff00'; alignment: Text.AlignHCenter");
  EXPECT_EQ(points(), 24);
  EXPECT_EQ(drawn("color").value<QColor>(), QColor(Qt::green));
  EXPECT_EQ(drawn("horizontalAlignment").toInt(), Qt::AlignHCenter);
}

TEST_F(LabelOutletTest, HasALookWhereNobodyChooses) {
  drawLabel();
  EXPECT_EQ(drawn("font").value<QFont>(), Appearance::font(16));
  EXPECT_EQ(drawn("horizontalAlignment").toInt(), Qt::AlignLeft);
}

TEST_F(LabelOutletTest, GrowsWithTheUsersTextsUnlessThePageSaysNo) {
  const auto looks = std::make_shared<FakeLooks>();
  ViewServices services = makeQtViewServices();
  services.looks = looks;
  installViewServices(services);
  drawLabel("points: 20");
  looks->change({.textScale = 1.5});
  EXPECT_EQ(points(), 30);
  item->setProperty("scales", false);
  EXPECT_EQ(points(), 20);
  item->setProperty("points", std::nan(""));
  label->setFont(UIFont::systemFontOfSize(10));
  EXPECT_EQ(points(), 10);
  item->setProperty("scales", true);
  EXPECT_EQ(points(), 15);
}

TEST_F(LabelOutletTest, TellsWhatIsChosenTwice) {
  drawLabel("points: 24; color: '#00ff00'; alignment: Text.AlignHCenter");
  EXPECT_EQ(warnings.take(), QStringList{});
  label->setFont(UIFont::systemFontOfSize(31));
  label->setTextColor(kRedColor);
  label->setTextAlignment(NSTextAlignment::right);
  const QString text = warnings.take().join(u'\n');
  for (const char* what : {"font", "colour", "alignment"}) {
    const QString expected =
        QStringLiteral("the page and the controller both choose the %1 of label")
            .arg(QLatin1String(what));
    EXPECT_TRUE(text.contains(expected)) << text.toStdString();
  }
}

TEST_F(LabelOutletTest, IsAsHighAsTheLinesThatItNeeds) {
  label->setText("Buy a coffee for someone who did not ask for one");
  drawLabel("width: 100");
  const double one = item->implicitHeight();
  drawLabel("width: 100; lines: 2");
  EXPECT_NEAR(item->implicitHeight(), 2 * one, 2);
  drawLabel("width: 100; lines: 0");
  EXPECT_GT(item->implicitHeight(), 3 * one);
  const double tall = item->implicitHeight();
  item->setWidth(1000);
  EXPECT_NEAR(item->implicitHeight(), one, 1);
  item->setWidth(100);
  EXPECT_EQ(item->implicitHeight(), tall);
}

}  // namespace
}  // namespace kindora
