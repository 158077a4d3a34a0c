// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "toolkit/view/LayoutComponents.h"

namespace kindora {

LayoutComponents::Node& LayoutComponents::node(layout::Variable variable) {
  while (nodes_.size() <= variable.index) {
    nodes_.push_back({static_cast<std::uint32_t>(nodes_.size())});
  }
  return nodes_[variable.index];
}

std::uint32_t LayoutComponents::topmost(std::uint32_t index) {
  while (nodes_[index].up != index) {
    nodes_[index].up = nodes_[nodes_[index].up].up;
    index = nodes_[index].up;
  }
  return index;
}

void LayoutComponents::connect(std::span<const layout::Term> terms) {
  const layout::Term* first = nullptr;
  for (const layout::Term& term : terms) {
    if (node(term.variable).isFixed) continue;
    if (first == nullptr) first = &term;
    nodes_[topmost(term.variable.index)].up = topmost(first->variable.index);
  }
  if (first == nullptr) return;
  for (const layout::Term& term : terms) {
    if (node(term.variable).isFixed) {
      mentioned_.emplace_back(term.variable.index, first->variable.index);
    }
  }
}

void LayoutComponents::touch(layout::Variable variable) {
  if (!node(variable).isFixed) {
    nodes_[topmost(variable.index)].isTouched = true;
    return;
  }
  for (const auto& [fixed, beside] : mentioned_) {
    if (fixed == variable.index) nodes_[topmost(beside)].isTouched = true;
  }
}

void LayoutComponents::touch(std::span<const layout::Term> terms) {
  for (const layout::Term& term : terms) {
    if (!node(term.variable).isFixed) touch(term.variable);
  }
}

bool LayoutComponents::isTouched(std::span<const layout::Term> terms) {
  for (const layout::Term& term : terms) {
    if (!node(term.variable).isFixed) return nodes_[topmost(term.variable.index)].isTouched;
  }
  return false;
}

}  // namespace kindora
