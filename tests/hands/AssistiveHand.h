// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/hands/Hand.h"

namespace kindora {

/// A tool that reads the accessibility tree aloud and acts through it alone.
class AssistiveHand final : public Hand {
 public:
  using Hand::Hand;

  void scrollTo(const std::string& name) override;
  void type(const std::string& field, const std::string& text) override;
  void eraseAt(const std::string& field, int position) override;
  void back() override;
  void rejectRow(const std::string& row) override;
  void zoomIn(const std::string& square) override;
  void increase(const std::string& slider) override;

 protected:
  void pressInReach(const Thing& thing) override;
  /// What is in the tree can be read, wherever it lies.
  [[nodiscard]] bool makesOut(const Thing& thing) const override { return !thing.name.empty(); }

 private:
  /// Does the first of the actions that the thing offers, and returns whether there was one.
  bool act(const Thing& thing, const QStringList& actions);
  void write(const std::string& name, const QString& text);
};

}  // namespace kindora
