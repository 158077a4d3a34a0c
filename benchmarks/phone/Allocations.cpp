// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
#include "benchmarks/phone/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

// The program has one thread.
std::uint64_t total = 0;

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = std::malloc(size);
  if (!memory) throw std::bad_alloc();
  ++total;
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace kindora::phonebench {

std::uint64_t allocations() { return total; }

}  // namespace kindora::phonebench
