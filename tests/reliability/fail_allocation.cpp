// SPDX-License-Identifier: MIT
//
// A library to preload. It makes one allocation of the process fail, the one
// whose number is in ZTK_FAIL_ALLOCATION. When the process ends, it writes the
// number of allocations to the file ZTK_COUNT_ALLOCATIONS.
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *old, std::size_t size);
}

namespace {

long allocations = 0;
long failing = -1;

bool Fails() {
  // The variable is read at the first allocation, not in a constructor, because
  // constructors of other libraries may allocate first.
  if (failing < 0) {
    const char *number = std::getenv("ZTK_FAIL_ALLOCATION");
    failing = number == nullptr ? 0 : std::atol(number);
  }
  if (++allocations != failing) return false;
  errno = ENOMEM;
  return true;
}

struct Report {
  ~Report() {
    const char *name = std::getenv("ZTK_COUNT_ALLOCATIONS");
    if (name == nullptr) return;
    const long count = allocations;
    std::FILE *file = std::fopen(name, "w");
    if (file == nullptr) return;
    std::fprintf(file, "%ld\n", count);
    std::fclose(file);
  }
};
const Report report;

}  // namespace

extern "C" {

void *malloc(std::size_t size) {
  return Fails() ? nullptr : __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size) {
  return Fails() ? nullptr : __libc_calloc(count, size);
}

void *realloc(void *old, std::size_t size) {
  return Fails() ? nullptr : __libc_realloc(old, size);
}

}  // extern "C"
