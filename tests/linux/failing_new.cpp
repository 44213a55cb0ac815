// SPDX-License-Identifier: MIT
#include "linux/failing_new.h"

#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

// The number of the next allocation that fails, from 1; 0 if none fails.
long failing = 0;

void *Allocate(std::size_t size) {
  if (failing != 0 && --failing == 0) return nullptr;
  return std::malloc(size == 0 ? 1 : size);
}

}  // namespace

bool ztk::test::RunFailing(long which, const std::function<void()> &function) {
  failing = which;
  function();
  const bool failed = failing == 0;
  failing = 0;
  return failed;
}

void *operator new(std::size_t size) {
  void *memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void *operator new(std::size_t size, const std::nothrow_t &) noexcept {
  return Allocate(size);
}
void operator delete(void *memory) noexcept { std::free(memory); }
void operator delete(void *memory, std::size_t) noexcept { std::free(memory); }
