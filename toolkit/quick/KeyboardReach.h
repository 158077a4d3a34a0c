// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>
#include <vector>

class QKeyEvent;

namespace kindora {

/// Lets the keyboard and assistive tools reach all that a Flickable holds, also what a list has not
/// made yet because it is out of sight. What gets the keyboard scrolls into sight, unless a pointer
/// gave it; Tab goes on where the list ends for now; arrows, Home, End, Page Up and Page Down go to
/// the control that lies there. Items of a list stand in the tree, which Tab and reading follow, as
/// they stand on the screen.
class KeyboardReach : public QObject {
  Q_OBJECT
  QML_ELEMENT
  /// The Flickable, which scrolls up and down.
  Q_PROPERTY(QQuickItem* area READ area WRITE setArea NOTIFY areaChanged REQUIRED)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* area() const { return area_; }
  void setArea(QQuickItem* area);

  /// Scrolls on by that many times what is in sight; back for a negative number.
  Q_INVOKABLE void turnPage(int pages);

 signals:
  void areaChanged();
  /// The keyboard or an assistive tool has scrolled.
  void scrolled();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Kind { any, noText };
  using Places = std::vector<QRectF>;  // in the content, in the order of the tree

  void watch(QQuickWindow* window);
  void watchItems();
  void orderSoon();
  void order();

  [[nodiscard]] bool pressed(const QKeyEvent& key);
  // Each goes from a place on, or back for a step of -1; false when there is nowhere to go.
  [[nodiscard]] bool goOn(const QRectF& from, int step);
  [[nodiscard]] bool goToLine(const QRectF& from, int step);
  [[nodiscard]] bool goAlongLine(const QRectF& from, int step);
  [[nodiscard]] bool goByPage(const QRectF& from, int step);
  [[nodiscard]] bool goToEnd(int step);

  [[nodiscard]] std::vector<QQuickItem*> itemsInReach(Kind kind);
  [[nodiscard]] Places placesInReach(Kind kind);
  [[nodiscard]] Places placesBeyond(const QRectF& from, int step, Kind kind);
  void focusAt(const QRectF& place);
  void showFocus();
  void show(const QRectF& place);
  void comeBack(const QRectF& from);

  [[nodiscard]] QRectF placeOf(const QQuickItem& item) const;
  [[nodiscard]] double number(const char* property) const;
  [[nodiscard]] double highest() const;
  [[nodiscard]] double lowest() const;
  bool scrollTo(double contentY);

  QPointer<QQuickItem> area_;
  QPointer<QQuickItem> content_;
  QPointer<QQuickWindow> window_;
  QMetaObject::Connection focus_;
  QPointer<QQuickItem> focused_;  // the last one inside that had the keyboard
  bool hadFocus_ = false;         // whether it was inside until now
  bool ordersSoon_ = false;
};

}  // namespace kindora
