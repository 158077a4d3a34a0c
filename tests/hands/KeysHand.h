// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include "tests/hands/Hand.h"

namespace kindora {

/// A keyboard, and never a pointer. Things are pressed by Return, Space and Enter in turn.
class KeysHand final : public Hand {
 public:
  using Hand::Hand;

  void scrollTo(const std::string& name) override;
  void type(const std::string& field, const std::string& text) override;
  void eraseAt(const std::string& field, int position) override;
  void back() override;
  void rejectRow(const std::string& row) override;
  void zoomIn(const std::string& square) override;
  void increase(const std::string& slider) override;
  /// Keeps the key pressed while the others' hands swing.
  void shake(int swings) override;

 protected:
  void pressInReach(const Thing& thing) override;

 private:
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  /// Goes on until it has arrived: by Tab, and inside lists by the arrows.
  void walk(const std::string& goal, const std::function<bool()>& arrived);
  /// Brings the keyboard to the thing.
  void focus(const std::string& name);
  [[nodiscard]] bool hasFocus(const std::string& name);

  int presses_ = 0;
};

}  // namespace kindora
