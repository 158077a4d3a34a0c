// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/FatalError.h"

namespace kindora {

/// Cells by kind, of any class that is a ReusableCell: how they are made, and those that are not
/// shown at the moment.
template <typename Cell>
class CellPool {
 public:
  using Maker = std::function<std::shared_ptr<Cell>()>;

  /// How cells of that kind are made: the prototype's class with its outlets connected.
  void registerCell(std::string_view reuseIdentifier, Maker maker) {
    makers_[std::string(reuseIdentifier)] = std::move(maker);
  }

  [[nodiscard]] bool knows(std::string_view reuseIdentifier) const {
    return makers_.contains(reuseIdentifier);
  }

  /// A cell that is not shown, or a new one. Stops when nobody registered the kind.
  [[nodiscard]] std::shared_ptr<Cell> dequeue(std::string_view reuseIdentifier) {
    // The one put back last: a place that is filled anew gets its own cell again.
    if (const auto [first, last] = idle_.equal_range(reuseIdentifier); first != last) {
      const auto latest = std::prev(last);
      std::shared_ptr<Cell> cell = std::move(latest->second);
      idle_.erase(latest);
      return cell;
    }
    const auto maker = makers_.find(reuseIdentifier);
    if (maker == makers_.end()) {
      fatalError("no cell is registered as \"" + std::string(reuseIdentifier) + "\"");
    }
    std::shared_ptr<Cell> cell = maker->second();
    cell->setReuseIdentifier(reuseIdentifier);
    cell->awakeFromNib();
    return cell;
  }

  /// Takes back a cell that is no longer shown.
  void recycle(std::shared_ptr<Cell> cell) {
    cell->prepareForReuse();
    std::string identifier = cell->reuseIdentifier();
    idle_.emplace(std::move(identifier), std::move(cell));
  }

 private:
  std::map<std::string, Maker, std::less<>> makers_;
  std::multimap<std::string, std::shared_ptr<Cell>, std::less<>> idle_;
};

}  // namespace kindora
