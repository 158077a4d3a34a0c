// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/hands/Program.h"
#include "tests/hands/Sight.h"

namespace kindora {

/// Why a hand could not go on: what it looked for is not there or does not answer.
class CannotGoOn final : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// What a user does with a program, whatever the user has to do it with. Things are called by the
/// names that they show or that are read aloud; "Two actions" is also found as "Two actions, Side
/// by side". What cannot be done throws CannotGoOn.
class Hand {
 public:
  explicit Hand(Program& program) : program_(program) {}
  virtual ~Hand() = default;
  Hand(const Hand&) = delete;
  Hand& operator=(const Hand&) = delete;

  /// Waits until something of that name can be made out, and is at rest.
  Thing sees(const std::string& name);
  /// The same of what may have to be brought into sight, as by scrolling.
  Thing reads(const std::string& name);
  /// Waits until nothing of that name can be made out any more.
  void seesNoMore(const std::string& name);
  /// Whether something of that name can be made out now.
  [[nodiscard]] bool canSee(const std::string& name);
  /// The names of all that can be pressed and made out now, from top to bottom.
  [[nodiscard]] std::vector<std::string> pressableNames();
  /// What stands in a field.
  [[nodiscard]] std::string textOf(const std::string& field);

  /// Brings something into reach, whatever scrolls for it.
  virtual void scrollTo(const std::string& name) = 0;
  /// Presses something, after it was brought into reach.
  void press(const std::string& name);
  /// Keeps something pressed for most of a second.
  virtual void pressLong(const std::string& name) { press(name); }
  /// Puts text behind what stands in a field.
  virtual void type(const std::string& field, const std::string& text) = 0;
  /// Takes the character away that stands behind so many others.
  virtual void eraseAt(const std::string& field, int position) = 0;
  /// One page back.
  virtual void back() = 0;
  /// Asks the list to reject a row.
  virtual void rejectRow(const std::string& row) = 0;
  /// Takes a new challenge's cover away.
  virtual void uncover() { press("Scratch the cover away"); }
  /// Enlarges the picture under the square.
  virtual void zoomIn(const std::string& square) = 0;
  /// One step up on a slider.
  virtual void increase(const std::string& slider) = 0;
  /// Shakes the device: four swings are enough.
  virtual void shake(int swings) { program_.swing(swings); }

  [[nodiscard]] Program& program() { return program_; }

 protected:
  /// Presses what is in reach.
  virtual void pressInReach(const Thing& thing) = 0;
  /// Whether this hand's user makes the thing out.
  [[nodiscard]] virtual bool makesOut(const Thing& thing) const { return thing.inSight(); }

  /// Lets frames pass until the condition holds, and returns whether it did in some seconds.
  bool waits(const std::function<bool()>& condition);
  [[nodiscard]] std::vector<Thing> things() { return thingsIn(program_.window()); }
  /// The thing of that name, made out or not: a pressable one or a field before others, and of
  /// several the one that lies on top. Its item is null without one.
  [[nodiscard]] Thing find(const std::string& name);
  /// The same of the fields.
  [[nodiscard]] Thing findField(const std::string& name);
  /// The field, once it is there.
  [[nodiscard]] Thing fieldCalled(const std::string& name);
  [[noreturn]] void giveUp(const std::string& what);

 private:
  void bringIntoSight(const std::string& name);

  Program& program_;
};

enum class HandKind { finger, keys, assistive, inputMethod };

[[nodiscard]] const char* nameOf(HandKind kind);
inline void PrintTo(HandKind kind, std::ostream* out) { *out << nameOf(kind); }
[[nodiscard]] std::unique_ptr<Hand> makeHand(HandKind kind, Program& program);

}  // namespace kindora
