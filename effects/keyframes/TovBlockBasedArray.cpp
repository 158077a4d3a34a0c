// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/TovBlockBasedArray.h"

#include <utility>
#include <vector>

#include "platform/FatalError.h"

namespace kindora {

TovBlockBasedArray::TovBlockBasedArray(std::size_t count, TovElementBlock block)
    : count_(count), block_(std::move(block)) {}

TovBlockBasedArray::Ref TovBlockBasedArray::arrayWithCount(std::size_t count,
                                                           TovElementBlock block) {
  return initWithCount(count, std::move(block));
}

TovBlockBasedArray::Ref TovBlockBasedArray::initWithCount(std::size_t count,
                                                          TovElementBlock block) {
  return Ref(new TovBlockBasedArray(count, std::move(block)));
}

TovBlockBasedArray::Ref TovBlockBasedArray::init() { return initWithCount(0, nullptr); }

TovBlockBasedArray::Ref TovBlockBasedArray::initWithObjects(std::span<const NSValue> objects,
                                                            std::size_t count) {
  if (count > objects.size()) fatalError("fewer objects than counted");
  const auto first = objects.first(count);
  const NSArrayRef array = arrayWithObjects(std::vector<NSValue>(first.begin(), first.end()));
  return initWithCount(count, [array](std::size_t index) { return array->objectAtIndex(index); });
}

NSValue TovBlockBasedArray::objectAtIndex(std::size_t index) const {
  if (!block_) fatalError("the array has no block to make its elements");
  return block_(index);
}

NSArrayRef TovBlockBasedArray::copy() const { return initWithCount(count_, block_); }

}  // namespace kindora
