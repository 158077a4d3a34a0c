// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
// An array that makes each element when it is read, again at every reading.
//
// It keeps nothing but its count and its block. An index past the end reaches the block like any
// other. Reading an array that has no block stops the program.
#pragma once

#include <memory>
#include <span>

#include "effects/keyframes/NSArray.h"
#include "effects/keyframes/TovBlocks.h"

namespace kindora {

class TovBlockBasedArray final : public NSArray {
 public:
  using Ref = std::shared_ptr<const TovBlockBasedArray>;

  [[nodiscard]] static Ref arrayWithCount(std::size_t count, TovElementBlock block);
  [[nodiscard]] static Ref initWithCount(std::size_t count, TovElementBlock block);
  /// No elements and no block.
  [[nodiscard]] static Ref init();
  /// The first count of the objects; there must be as many.
  [[nodiscard]] static Ref initWithObjects(std::span<const NSValue> objects, std::size_t count);

  [[nodiscard]] std::size_t count() const override { return count_; }
  [[nodiscard]] const TovElementBlock& block() const { return block_; }
  [[nodiscard]] NSValue objectAtIndex(std::size_t index) const override;
  [[nodiscard]] NSArrayRef copy() const override;

 private:
  TovBlockBasedArray(std::size_t count, TovElementBlock block);

  std::size_t count_;
  TovElementBlock block_;
};

}  // namespace kindora
