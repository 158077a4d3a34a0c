// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QInputMethodEvent>
#include <QPointF>
#include <QPointingDevice>
#include <memory>

#include "tests/hands/Hand.h"

namespace kindora {

/// Fingers on a touch screen, and a keyboard on that screen that sends one character after the
/// other without composing. No mouse but what Qt makes of a finger.
class FingerHand : public Hand {
 public:
  explicit FingerHand(Program& program);

  void scrollTo(const std::string& name) override;
  void pressLong(const std::string& name) override;
  void type(const std::string& field, const std::string& text) override;
  void eraseAt(const std::string& field, int position) override;
  void back() override;
  void rejectRow(const std::string& row) override;
  void uncover() override;
  void zoomIn(const std::string& square) override;
  void increase(const std::string& slider) override;

 protected:
  void pressInReach(const Thing& thing) override;
  /// Touches the field, unless the keyboard writes there already.
  void touchField(const std::string& name);
  /// Sends what an on-screen keyboard sends to the field that it writes into.
  void send(QInputMethodEvent& event);
  void placeCaret(int position);

 private:
  struct Pace {
    int steps;
    int milliseconds;  // for each step
  };
  void tap(QPointF at);
  void drag(QPointF from, QPointF to, Pace pace);
  void fling(QPointF from, QPointF to) { drag(from, to, {.steps = 6, .milliseconds = 8}); }
  void draw(QPointF from, QPointF to) { drag(from, to, {.steps = 16, .milliseconds = 4}); }

  std::unique_ptr<QPointingDevice> screen_;
};

}  // namespace kindora
