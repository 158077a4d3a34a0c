// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// Layout by constraints as QML writes it.
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>

#include "alerts/qt/ConstraintLayout.h"
#include "alerts/qt/ItemConstraint.h"
#include "alerts/qt/ItemView.h"
#include "alerts/qt/LayoutConstraint.h"
#include "tests/support/QuickFixture.h"

namespace kindora {
namespace {

class ConstraintLayoutQmlTest : public QuickFixture {
 protected:
  // A layout of 100 x 80 around the text.
  void load(const QByteArray& content) {
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData(
        "import QtQuick\nimport Kindora.Alerts\n"
        "ConstraintLayout {\n id: root\n width: 100; height: 80\n" +
            content + "}",
        QUrl());
    layout.reset(qobject_cast<QQuickItem*>(component.create()));
    ASSERT_TRUE(layout) << component.errorString().toStdString();
    layout->setParentItem(window.contentItem());
    settle();
  }
  void settle() { static_cast<void>(drawn()); }
  [[nodiscard]] QQuickItem& item(const char* name) {
    return *layout->findChild<QQuickItem*>(QLatin1String(name));
  }
  QRectF geometry(const char* name) {
    const QQuickItem& found = item(name);
    return {found.position(), QSizeF(found.width(), found.height())};
  }
  QVariant made() { return layout->property("made"); }

  QQmlEngine engine;
  std::unique_ptr<QQuickItem> layout;
};

TEST_F(ConstraintLayoutQmlTest, DeclaredConstraintsPlaceItems) {
  load(R"(
    Rectangle { id: a; objectName: "a" }
    Rectangle { id: b; objectName: "b"; implicitWidth: 12 }
    Constraint { item: a; attribute: Constraint.Left; to: root; constant: 8 }
    Constraint { item: a; attribute: Constraint.Top; to: root; constant: 4 }
    Constraint { item: a; attribute: Constraint.Width; constant: 30 }
    Constraint { item: a; attribute: Constraint.Height; to: root; multiplier: 0.5; constant: -10 }
    Constraint { item: b; attribute: Constraint.Left; to: a; toAttribute: Constraint.Right
                 constant: 5 }
    Constraint { item: b; attribute: Constraint.CenterY; to: a }
    Constraint { item: b; attribute: Constraint.Height; constant: 10 }
    Constraint { item: b; attribute: Constraint.Height; relation: Constraint.GreaterThanOrEqual
                 constant: 50; priority: 500 }
  )");
  EXPECT_EQ(geometry("a"), QRectF(8, 4, 30, 30));
  EXPECT_EQ(geometry("b"), QRectF(43, 14, 12, 10));
}

TEST_F(ConstraintLayoutQmlTest, ADeclaredConstraintFollowsItsProperties) {
  load(R"(
    property real wide: 30
    property bool on: true
    Item { id: a; objectName: "a" }
    Constraint { objectName: "c"; item: a; attribute: Constraint.Width; constant: root.wide }
    Constraint { item: a; attribute: Constraint.Height; constant: 20; active: root.on }
  )");
  EXPECT_EQ(geometry("a"), QRectF(0, 0, 30, 20));
  layout->setProperty("wide", 44);
  settle();
  EXPECT_EQ(geometry("a").width(), 44);
  auto* constraint = layout->findChild<ItemConstraint*>(QStringLiteral("c"));
  ASSERT_NE(constraint, nullptr);
  constraint->setAttribute(ItemConstraint::Height);
  EXPECT_EQ(viewOfItem(item("a"))->constraints().size(), 2U);
  layout->setProperty("on", false);
  settle();
  EXPECT_EQ(geometry("a").height(), 44);
}

TEST_F(ConstraintLayoutQmlTest, AConstraintBetweenTwoIsNoConstantSizeOnceOneHasGone) {
  load(R"(
    Item { id: a; objectName: "a" }
    Item { id: b; objectName: "b" }
    Constraint { item: b; attribute: Constraint.Width; constant: 33 }
    Constraint { objectName: "c"; item: a; attribute: Constraint.Width; to: b; constant: 5 }
  )");
  EXPECT_EQ(geometry("a").width(), 38);
  auto* constraint = layout->findChild<ItemConstraint*>(QStringLiteral("c"));
  delete &item("b");
  EXPECT_EQ(constraint->to(), nullptr);
  constraint->setPriority(900);
  settle();
  EXPECT_TRUE(viewOfItem(item("a"))->constraints().empty());
  EXPECT_EQ(geometry("a").width(), 38);
}

TEST_F(ConstraintLayoutQmlTest, HelpersTakeItemsAndReturnConstraints) {
  load(R"(
    property var made
    Item { id: a; objectName: "a" }
    Item { id: b; objectName: "b" }
    Component.onCompleted: {
      QavAutoLayout.qav_alignEdges(a, QavAutoLayout.Top | QavAutoLayout.Left, root,
                                   { top: 3, left: 6 })
      QavAutoLayout.qav_pinSize(a, Qt.size(20, 10))
      QavAutoLayout.qav_alignEdge(b, QavAutoLayout.Top, a)
      QavAutoLayout.qav_alignEdge(b, QavAutoLayout.Left, QavAutoLayout.Right, a, 4)
      QavAutoLayout.qav_pinSizeToSizeOfView(b, a, Qt.size(1, 2))
      made = QavAutoLayout.qav_alignEdge(b, QavAutoLayout.Bottom, root, 1)
      made.remove()
    }
  )");
  EXPECT_EQ(geometry("a"), QRectF(6, 3, 20, 10));
  EXPECT_EQ(geometry("b"), QRectF(30, 3, 21, 12));
  auto* removed = made().value<LayoutConstraint*>();
  ASSERT_NE(removed, nullptr);
  EXPECT_FALSE(removed->isInstalled());
  EXPECT_EQ(removed->constraint()->constant(), 1);
}

TEST_F(ConstraintLayoutQmlTest, SeveralConstraintsComeInTheHelpersOrder) {
  load(R"(
    property var made
    Item { id: a; objectName: "a" }
    Component.onCompleted: made = QavAutoLayout.qav_alignEdgesWithSuperview(
        a, QavAutoLayout.All, { top: 1, left: 2, bottom: 3, right: 4 }).map(c => c.constant)
  )");
  EXPECT_EQ(made().toList(), (QVariantList{1.0, 4.0, 3.0, 2.0}));
  EXPECT_EQ(geometry("a"), QRectF(2, 1, 102, 82));
}

TEST_F(ConstraintLayoutQmlTest, AReturnedConstraintTakesANewConstant) {
  load(R"(
    property var made
    Item { id: a; objectName: "a" }
    Component.onCompleted: made = QavAutoLayout.qav_pinWidth(a, 10)
    function widen() { made.constant = 70 }
  )");
  EXPECT_EQ(geometry("a").width(), 10);
  QMetaObject::invokeMethod(layout.get(), "widen");
  settle();
  EXPECT_EQ(geometry("a").width(), 70);
}

TEST_F(ConstraintLayoutQmlTest, WhatIsNoEdgeGivesNull) {
  load(R"(
    property var made: [QavAutoLayout.qav_alignEdge(a, 16, root) === null,
                        QavAutoLayout.qav_layoutAttributeFromRectEdge(8),
                        QavAutoLayout.qav_commonAncestorWithView(a, root) === root]
    Item { id: a; objectName: "a" }
  )");
  EXPECT_EQ(made().toList(), (QVariantList{true, 2, true}));
}

TEST_F(ConstraintLayoutQmlTest, AMissingItemGivesNull) {
  load("property var made: QavAutoLayout.qav_pinWidth(null, 5) === null");
  EXPECT_TRUE(made().toBool());
}

TEST_F(ConstraintLayoutQmlTest, NothingThatIsLeftOrRightIsMirrored) {
  load(R"(
    LayoutMirroring.enabled: true
    LayoutMirroring.childrenInherit: true
    Item { id: a; objectName: "a"; implicitWidth: 20; implicitHeight: 10 }
    Item { id: b; objectName: "b"; implicitWidth: 20; implicitHeight: 10 }
    Constraint { item: a; attribute: Constraint.Left; to: root; constant: 5 }
    Constraint { item: b; attribute: Constraint.Right; to: root; constant: -7 }
  )");
  EXPECT_EQ(geometry("a").left(), 5);
  EXPECT_EQ(geometry("b").right(), 93);
}

TEST_F(ConstraintLayoutQmlTest, ATextIsAsHighAsItsLinesAtTheWidthThatItIsGiven) {
  load(R"(
    Text { id: a; objectName: "a"; wrapMode: Text.Wrap; font.pixelSize: 10
           text: "one two three four five six seven eight nine ten eleven twelve" }
    Item { id: b; objectName: "b" }
    Constraint { item: a; attribute: Constraint.Left; to: root }
    Constraint { item: a; attribute: Constraint.Right; to: root }
    Constraint { item: b; attribute: Constraint.Top; to: a; toAttribute: Constraint.Bottom }
  )");
  const int lines = item("a").property("lineCount").toInt();
  EXPECT_GT(lines, 1);
  EXPECT_EQ(geometry("a").width(), 100);
  EXPECT_EQ(geometry("a").height(), item("a").implicitHeight());
  EXPECT_EQ(geometry("b").top(), item("a").implicitHeight());
  layout->setWidth(50);
  settle();
  EXPECT_GT(item("a").property("lineCount").toInt(), lines);
  EXPECT_EQ(geometry("a").height(), item("a").implicitHeight());
  EXPECT_EQ(geometry("b").top(), item("a").implicitHeight());
}

TEST_F(ConstraintLayoutQmlTest, FirstAndLastBaselinesStandWhereTheTextDoes) {
  load(R"(
    Text { id: a; objectName: "a"; text: "one\ntwo\nthree"; font.pixelSize: 10 }
    Text { id: b; objectName: "b"; text: "one"; font.pixelSize: 10 }
    Text { id: c; objectName: "c"; text: "one"; font.pixelSize: 10 }
    Item { id: d; objectName: "d"; implicitHeight: 4 }
    Constraint { item: a; attribute: Constraint.Top; to: root; constant: 6 }
    Constraint { item: b; attribute: Constraint.FirstBaseline; to: a }
    Constraint { item: c; attribute: Constraint.Baseline; to: a }
    Constraint { item: d; attribute: Constraint.Baseline; to: a }
  )");
  const double line = item("b").implicitHeight();
  EXPECT_NEAR(geometry("b").top(), 6, 0.01);
  EXPECT_NEAR(geometry("c").top(), 6 + 2 * line, 1);
  EXPECT_NEAR(geometry("d").bottom(), geometry("c").top() + item("c").baselineOffset(), 0.01);
}

TEST_F(ConstraintLayoutQmlTest, AnEmptyTextTakesNoWidth) {
  load(R"(
    Text { id: a; objectName: "a" }
    Constraint { item: a; attribute: Constraint.Left; to: root }
  )");
  EXPECT_EQ(viewOfItem(item("a"))->intrinsicContentSize().width, 0);
}

TEST_F(ConstraintLayoutQmlTest, EachItemSaysWhetherConstraintsPlaceIt) {
  load(R"(
    Item { id: a; objectName: "a"; x: 9; ConstraintLayout.constraintBased: false
           Item { id: b; objectName: "b"; ConstraintLayout.constraintBased: true } }
    Constraint { item: a; attribute: Constraint.Left; to: root; constant: 5 }
    Constraint { item: b; attribute: Constraint.Right; to: root; constant: 0 }
    Constraint { item: b; attribute: Constraint.Width; constant: 11 }
  )");
  EXPECT_EQ(geometry("a").left(), 9);
  EXPECT_EQ(geometry("b"), QRectF(80, 0, 11, 0));
}

}  // namespace
}  // namespace kindora
