// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "effects/keyframes/NSArray.h"

#include <utility>

#include "platform/FatalError.h"

namespace kindora {
namespace {

class StoredArray final : public NSArray {
 public:
  explicit StoredArray(std::vector<NSValue> objects) : objects_(std::move(objects)) {}

  [[nodiscard]] std::size_t count() const override { return objects_.size(); }
  [[nodiscard]] NSValue objectAtIndex(std::size_t index) const override {
    if (index >= objects_.size()) fatalError("array index beyond bounds");
    return objects_[index];
  }
  [[nodiscard]] NSArrayRef copy() const override { return arrayWithObjects(objects_); }

 private:
  std::vector<NSValue> objects_;
};

}  // namespace

NSArrayRef NSArray::arrayWithObjects(std::vector<NSValue> objects) {
  return std::make_shared<StoredArray>(std::move(objects));
}

}  // namespace kindora
