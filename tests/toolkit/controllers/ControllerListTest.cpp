// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/controllers/ControllerList.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <vector>

#include "toolkit/controllers/UIViewController.h"

namespace kindora {
namespace {

class ControllerListTest : public ::testing::Test {
 protected:
  using Items = std::vector<ControllerList::Item>;

  ControllerListTest() {
    QObject::connect(&list, &QAbstractItemModel::rowsInserted, [this] { ++inserted; });
    QObject::connect(&list, &QAbstractItemModel::rowsRemoved, [this] { ++removed; });
    QObject::connect(&list, &ControllerList::countChanged, [this] { ++counted; });
  }
  [[nodiscard]] UIViewController* drawn(int row) const {
    return list.data(list.index(row), list.roleNames().key("controller"))
        .value<UIViewController*>();
  }

  const ControllerList::Item a = makeViewController<UIViewController>();
  const ControllerList::Item b = makeViewController<UIViewController>();
  const ControllerList::Item c = makeViewController<UIViewController>();
  ControllerList list;
  QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
  int inserted = 0;
  int removed = 0;
  int counted = 0;
};

TEST_F(ControllerListTest, IsEmptyAtTheStart) {
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.rowCount(), 0);
}

TEST_F(ControllerListTest, AppendsOnTop) {
  list.append(a);
  list.append(b);
  EXPECT_EQ(list.items(), (Items{a, b}));
  EXPECT_EQ(drawn(0), a.get());
  EXPECT_EQ(drawn(1), b.get());
  EXPECT_EQ(inserted, 2);
  EXPECT_EQ(counted, 2);
}

TEST_F(ControllerListTest, RemovesOnlyTheOneNamed) {
  list.append(a);
  list.append(b);
  list.append(c);
  list.remove(b);
  EXPECT_EQ(list.items(), (Items{a, c}));
  EXPECT_EQ(removed, 1);
  EXPECT_EQ(counted, 4);
}

TEST_F(ControllerListTest, RemovingAStrangerChangesNothing) {
  list.append(a);
  list.remove(b);
  EXPECT_EQ(list.items(), (Items{a}));
  EXPECT_EQ(removed, 0);
  EXPECT_EQ(counted, 1);
}

TEST_F(ControllerListTest, KeepsTheRemovedOneUntilAllHaveHeardOfIt) {
  auto only = makeViewController<UIViewController>();
  const std::weak_ptr<UIViewController> gone = only;
  list.append(only);
  only.reset();
  bool aliveThen = false;
  QObject::connect(&list, &QAbstractItemModel::rowsRemoved, [&] { aliveThen = !gone.expired(); });
  list.remove(list.items().front());
  EXPECT_TRUE(aliveThen);
  EXPECT_TRUE(gone.expired());
}

TEST_F(ControllerListTest, HasNothingOutsideItsRows) {
  list.append(a);
  EXPECT_FALSE(list.data(list.index(0), Qt::DisplayRole).isValid());
  EXPECT_FALSE(list.data(QModelIndex(), list.roleNames().key("controller")).isValid());
  EXPECT_EQ(list.rowCount(list.index(0)), 0);
}

TEST_F(ControllerListTest, AssigningKeepsTheRowsThatStay) {
  list.append(a);
  list.append(b);
  list.assign({a, b, c});
  EXPECT_EQ(list.items(), (Items{a, b, c}));
  EXPECT_EQ(inserted, 3);
  EXPECT_EQ(removed, 0);
}

TEST_F(ControllerListTest, AssigningTakesOutWhatIsNotListed) {
  list.append(a);
  list.append(b);
  list.assign({a});
  EXPECT_EQ(list.items(), (Items{a}));
  list.assign({});
  EXPECT_EQ(list.items(), (Items{}));
}

TEST_F(ControllerListTest, AssigningTheSameChangesNothing) {
  list.append(a);
  list.append(b);
  list.assign({a, b});
  EXPECT_EQ(inserted, 2);
  EXPECT_EQ(removed, 0);
}

TEST_F(ControllerListTest, AssigningAnotherOrderIsObeyed) {
  list.append(a);
  list.append(b);
  list.assign({b, a});
  EXPECT_EQ(list.items(), (Items{b, a}));
}

}  // namespace
}  // namespace kindora
