// SPDX-License-Identifier: MIT
//
// Preloaded: makes one allocation of the process fail; ZTK_FAIL_ALLOCATION has
// its number. At the end of the process the number of allocations is written to
// the file that ZTK_COUNT_ALLOCATIONS names.
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
  // The first allocation happens before the environment can be read.
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
