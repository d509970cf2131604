// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/damage/AllocationMeter.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace tests {

namespace {

std::atomic<std::size_t> taken{0};
std::atomic<std::size_t> peak{0};
std::atomic<std::size_t> start{0};

std::size_t SizeOf(void* memory) {
#ifdef _WIN32
  return ::_msize(memory);
#else
  return ::malloc_usable_size(memory);
#endif
}

}  // namespace

void AllocationMeter::Reset() {
  start = taken.load();
  peak = taken.load();
}

std::size_t AllocationMeter::Peak() { return peak - start; }

// Memory of the C library, since these two stand under the operators of the language.
void* TakeIfThereIs(std::size_t size) noexcept {
  void* memory = std::malloc(size);  // NOLINT(cppcoreguidelines-no-malloc)
  if (memory == nullptr) return nullptr;
  taken += SizeOf(memory);
  peak = std::max(peak.load(), taken.load());
  return memory;
}

void* Take(std::size_t size) {
  void* memory = TakeIfThereIs(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void GiveBack(void* memory) noexcept {
  if (memory != nullptr) taken -= SizeOf(memory);
  std::free(memory);  // NOLINT(cppcoreguidelines-no-malloc)
}

}  // namespace tests

void* operator new(std::size_t size) { return tests::Take(size); }
void* operator new[](std::size_t size) { return tests::Take(size); }
// What the library sorts with.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return tests::TakeIfThereIs(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return tests::TakeIfThereIs(size);
}
void operator delete(void* memory) noexcept { tests::GiveBack(memory); }
void operator delete[](void* memory) noexcept { tests::GiveBack(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { tests::GiveBack(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { tests::GiveBack(memory); }
