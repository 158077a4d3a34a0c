// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/support/HeapUse.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace kindora::heapuse {
namespace {

// Benchmarks run on one thread.
std::size_t count = 0;
std::size_t taken = 0;
std::size_t most = 0;

void* take(std::size_t size) {
  void* memory = std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  ++count;
  taken += malloc_usable_size(memory);
  most = std::max(most, taken);
  return memory;
}

void release(void* memory) {
  if (memory != nullptr) taken -= malloc_usable_size(memory);
  std::free(memory);
}

}  // namespace

std::size_t allocations() { return count; }
std::size_t bytes() { return taken; }
std::size_t peakBytes() { return most; }
void resetPeak() { most = taken; }

}  // namespace kindora::heapuse

void* operator new(std::size_t size) { return kindora::heapuse::take(size); }
void* operator new[](std::size_t size) { return kindora::heapuse::take(size); }
void operator delete(void* memory) noexcept { kindora::heapuse::release(memory); }
void operator delete[](void* memory) noexcept { kindora::heapuse::release(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  kindora::heapuse::release(memory);
}
void operator delete[](void* memory, std::size_t /*size*/) noexcept {
  kindora::heapuse::release(memory);
}
