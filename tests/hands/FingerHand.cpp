// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "tests/hands/FingerHand.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QStyleHints>
#include <QTest>
#include <algorithm>

namespace kindora {
namespace {

// What is only seen has no name that is read aloud.
const QQuickItem* drawn(const QQuickItem* in, const char* objectName) {
  if (in->objectName() == QLatin1String(objectName)) return in;
  for (const QQuickItem* child : in->childItems()) {
    const QQuickItem* found = child->isVisible() ? drawn(child, objectName) : nullptr;
    if (found != nullptr) return found;
  }
  return nullptr;
}

}  // namespace

FingerHand::FingerHand(Program& program) : Hand(program), screen_(QTest::createTouchDevice()) {}

void FingerHand::tap(QPointF at) {
  QTest::touchEvent(&program().window(), screen_.get()).press(0, at.toPoint());
  program().frame();
  QTest::touchEvent(&program().window(), screen_.get()).release(0, at.toPoint());
  program().frame();
}

void FingerHand::drag(QPointF from, QPointF to, Pace pace) {
  QQuickWindow* window = &program().window();
  QTest::touchEvent(window, screen_.get()).press(0, from.toPoint());
  program().frame();
  for (int i = 1; i <= pace.steps; ++i) {
    // The speed of a finger is told by Qt's own clock.
    QTest::qSleep(pace.milliseconds);
    QTest::touchEvent(window, screen_.get())
        .move(0, (from + (to - from) * i / pace.steps).toPoint());
    program().frame();
  }
  QTest::touchEvent(window, screen_.get()).release(0, to.toPoint());
  program().rest();
}

void FingerHand::pressInReach(const Thing& thing) { tap(thing.seen().center()); }

void FingerHand::pressLong(const std::string& name) {
  scrollTo(name);
  const QPoint at = sees(name).seen().center().toPoint();
  // A press is long at once: Qt's own clock tells how long it lasts.
  QStyleHints& hints = *QGuiApplication::styleHints();
  const int interval = hints.mousePressAndHoldInterval();
  hints.setMousePressAndHoldInterval(0);
  QTest::touchEvent(&program().window(), screen_.get()).press(0, at);
  program().frame();
  program().frame();
  hints.setMousePressAndHoldInterval(interval);
  QTest::touchEvent(&program().window(), screen_.get()).release(0, at);
  program().rest();
}

// Drags what lies under the middle of the window, or of what the thing is seen through, down to its
// end and up again, until the thing comes; more than once, since a fling may carry it past.
void FingerHand::scrollTo(const std::string& name) {
  constexpr int kMostDrags = 200;
  double direction = -1;  // the finger goes up, what is below comes
  int ends = 0;
  std::string before;
  for (int i = 0; i < kMostDrags && ends < 8; ++i) {
    const Thing thing = find(name);
    if (thing.item && makesOut(thing)) return;
    const QSizeF size = program().window().size();
    QRectF area(0, size.height() * 0.2, size.width(), size.height() * 0.6);
    if (thing.item) {
      if (!thing.clip.isEmpty()) area = thing.clip & area;
      if (thing.clip.isEmpty() || area.isEmpty()) area = QRectF(QPointF(), size);
      const double aside = thing.rect.center().x() - thing.clip.center().x();
      if (thing.rect.right() <= thing.clip.left() || thing.rect.left() >= thing.clip.right()) {
        const QPointF middle(thing.clip.center().x(), thing.rect.center().y());
        const QPointF way(thing.clip.width() * (aside > 0 ? -0.35 : 0.35), 0);
        draw(middle - way, middle + way);
        continue;
      }
      direction = thing.rect.center().y() > thing.clip.center().y() ? -1 : 1;
    }
    const QPointF way(0, direction * area.height() * 0.25);
    draw(area.center() - way, area.center() + way);
    const std::string now = described(things());
    if (now == before) {
      ++ends;
      direction = -direction;
    }
    before = now;
  }
  giveUp("no finger brings \"" + name + "\" into sight");
}

void FingerHand::touchField(const std::string& name) {
  const Thing there = fieldCalled(name);
  if (focusedThing(program().window()).isCalled(name)) return;
  if (!there.inSight()) scrollTo(name);
  tap(fieldCalled(name).seen().center());
  program().rest();
  if (!focusedThing(program().window()).isCalled(name)) {
    giveUp("a touch does not bring the keyboard into \"" + name + "\"");
  }
}

void FingerHand::send(QInputMethodEvent& event) {
  QObject* target = QGuiApplication::focusObject();
  if (target == nullptr) giveUp("nothing takes what the keyboard on the screen sends");
  QCoreApplication::sendEvent(target, &event);
  program().frame();
}

void FingerHand::placeCaret(int position) {
  QInputMethodEvent event(
      QString(), {QInputMethodEvent::Attribute(QInputMethodEvent::Selection, position, 0)});
  send(event);
}

void FingerHand::type(const std::string& field, const std::string& text) {
  touchField(field);
  placeCaret(static_cast<int>(QString::fromStdString(textOf(field)).size()));
  for (const QChar character : QString::fromStdString(text)) {
    QInputMethodEvent event;
    event.setCommitString(character);
    send(event);
  }
}

void FingerHand::eraseAt(const std::string& field, int position) {
  touchField(field);
  placeCaret(position);
  QInputMethodEvent event;
  event.setCommitString(QString(), 0, 1);
  send(event);
}

// From the edge of the page, where its bar begins.
void FingerHand::back() {
  program().rest();
  const QSizeF size = program().window().size();
  const double left = find("Back").rect.left();
  const double width = std::min(size.width() - left, 480.0);
  draw({left + 4, size.height() * 0.6}, {left + width * 0.8, size.height() * 0.6});
}

void FingerHand::rejectRow(const std::string& row) {
  scrollTo(row);
  const QRectF place = sees(row).seen();
  draw({place.right() - 40, place.center().y()}, {place.right() - 220, place.center().y()});
  press("Reject");
}

// Rubs over the cover line by line, from its middle to either side and beyond.
void FingerHand::uncover() {
  sees("Scratch the cover away");
  const QQuickItem* cover = drawn(program().window().contentItem(), "scratchImageView");
  if (cover == nullptr) giveUp("there is no cover");
  const QRectF place = cover->mapRectToScene({0, 0, cover->width(), cover->height()});
  for (double y = place.bottom() - 16; canSee("Scratch the cover away") && y > place.top();
       y -= 24) {
    for (const double side : {place.left(), place.right()}) {
      drag({place.center().x(), y}, {side, y}, {.steps = 7, .milliseconds = 1});
    }
  }
}

void FingerHand::zoomIn(const std::string& square) {
  const QPoint middle = sees(square).seen().center().toPoint();
  QQuickWindow* window = &program().window();
  for (int apart = 30; apart <= 110; apart += 8) {
    const QPoint half(apart, 0);
    auto fingers = QTest::touchEvent(window, screen_.get());
    if (apart == 30) {
      fingers.press(0, middle - half).press(1, middle + half);
    } else {
      fingers.move(0, middle - half).move(1, middle + half);
    }
    fingers.commit();
    program().frame();
  }
  QTest::touchEvent(window, screen_.get())
      .release(0, middle - QPoint(110, 0))
      .release(1, middle + QPoint(110, 0));
  program().rest();
}

void FingerHand::increase(const std::string& slider) {
  scrollTo(slider);
  const QRectF place = sees(slider).seen();
  draw(place.center(), {place.right() + 10, place.center().y()});
}

}  // namespace kindora
