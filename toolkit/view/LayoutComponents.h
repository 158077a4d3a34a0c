// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "layout/Constraint.h"

namespace kindora {

/// The parts into which constraints fall that share no variable, and which of them anything has
/// changed in. Variables whose values are given hold nothing together.
class LayoutComponents final {
 public:
  void fix(layout::Variable variable) { node(variable).isFixed = true; }
  /// Once all that is given is known.
  void connect(std::span<const layout::Term> terms);
  /// Once all is connected: the variable's value, or a constraint with these terms, has changed.
  void touch(layout::Variable variable);
  void touch(std::span<const layout::Term> terms);
  [[nodiscard]] bool isTouched(std::span<const layout::Term> terms);

 private:
  struct Node {
    std::uint32_t up = 0;
    bool isFixed = false;
    bool isTouched = false;  // of the topmost: all below it
  };

  [[nodiscard]] Node& node(layout::Variable variable);
  [[nodiscard]] std::uint32_t topmost(std::uint32_t index);

  std::vector<Node> nodes_;  // by the index of a variable
  std::vector<std::pair<std::uint32_t, std::uint32_t>>
      mentioned_;  // what is fixed, and beside what
};

}  // namespace kindora
