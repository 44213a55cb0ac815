// SPDX-License-Identifier: MIT
#include "linux/failing_calls.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace ztk::test {

NextCalls readCalls;
NextCalls linkCalls;
NextCalls linkatCalls;
NextCalls renameCalls;
NextCalls fsyncCalls;

bool NextCalls::Fail() {
  ++count;
  if (passing > 0) {
    --passing;
    return false;
  }
  if (failing == 0) return false;
  --failing;
  if (action) action();
  errno = error;
  return true;
}

void WithFailingCalls::Reset() {
  for (NextCalls *calls :
       {&readCalls, &linkCalls, &linkatCalls, &renameCalls, &fsyncCalls}) {
    *calls = {};
  }
}

}  // namespace ztk::test

extern "C" {

ssize_t read(int file, void *bytes, size_t size) {
  if (ztk::test::readCalls.Fail()) return -1;
  return syscall(SYS_read, file, bytes, size);
}

int link(const char *from, const char *to) noexcept {
  if (ztk::test::linkCalls.Fail()) return -1;
  return static_cast<int>(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to,
           int flags) noexcept {
  if (ztk::test::linkatCalls.Fail()) return -1;
  return static_cast<int>(
      syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int rename(const char *from, const char *to) noexcept {
  if (ztk::test::renameCalls.Fail()) return -1;
  return renameat(AT_FDCWD, from, AT_FDCWD, to);
}

int fsync(int file) {
  if (ztk::test::fsyncCalls.Fail()) return -1;
  return static_cast<int>(syscall(SYS_fsync, file));
}

}  // extern "C"
