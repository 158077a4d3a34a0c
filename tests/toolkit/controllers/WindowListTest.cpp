// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/WindowList.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "toolkit/controllers/UIWindow.h"

namespace kindora {
namespace {

class WindowListTest : public ::testing::Test {
 protected:
  WindowListTest() {
    alert.setWindowLevel(UIWindowLevelAlert);
    for (UIWindow* window : {&a, &b, &c, &alert}) list.raise(*window);
  }

  using Windows = std::vector<UIWindow*>;
  UIWindow a;
  UIWindow b;
  UIWindow c;
  UIWindow alert;
  WindowList list;
  const QAbstractItemModelTester tester{&list,
                                        QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(WindowListTest, OffersEachWindow) {
  EXPECT_EQ(list.rowCount(), 4);
  EXPECT_EQ(list.roleNames().value(Qt::UserRole), "host");
  EXPECT_EQ(list.data(list.index(3), Qt::UserRole).value<UIWindow*>(), &alert);
  EXPECT_FALSE(list.data(list.index(0), Qt::DisplayRole).isValid());
}

TEST_F(WindowListTest, AWindowThatIsRaisedMoves) {
  int moves = 0;
  QObject::connect(&list, &QAbstractItemModel::rowsMoved, [&moves] { ++moves; });
  list.raise(a);
  EXPECT_EQ(list.items(), (Windows{&b, &c, &a, &alert}));
  list.raise(a);
  EXPECT_EQ(moves, 1);
}

TEST_F(WindowListTest, AWindowThatSinksMoves) {
  alert.setWindowLevel(-1);
  list.raise(alert);
  EXPECT_EQ(list.items(), (Windows{&alert, &a, &b, &c}));
}

TEST_F(WindowListTest, RemovesAWindowOnce) {
  list.remove(b);
  list.remove(b);
  EXPECT_EQ(list.items(), (Windows{&a, &c, &alert}));
}

}  // namespace
}  // namespace kindora
