// SPDX-License-Identifier: MIT
//
// Replacements for functions of macOS's C and C++ libraries whose arguments or
// results differ from those of the Linux functions of the same name. The loader
// finds them by the prefix "darwin_".
#include <dlfcn.h>
#include <fcntl.h>
#include <pthread.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <locale>
#include <mutex>

#include "image.h"

namespace {

// The error numbers that differ: on Linux, on macOS.
constexpr int kErrors[][2] = {{EAGAIN, 35}, {EDEADLK, 11},   {ENAMETOOLONG, 63},
                              {ELOOP, 62},  {ENOTEMPTY, 66}, {EOVERFLOW, 84},
                              {EDQUOT, 69}, {ENOSYS, 78},    {ETIMEDOUT, 60},
                              {EILSEQ, 92}, {ENOTSUP, 45},   {ECANCELED, 89}};

int DarwinError(int error) {
  for (const auto &[linuxError, darwinError] : kErrors) {
    if (linuxError == error) return darwinError;
  }
  return error;
}

int OpenFlags(int flags) {
  constexpr int kFlags[][2] = {
      {0x4, O_NONBLOCK},   {0x8, O_APPEND},         {0x100, O_NOFOLLOW},
      {0x200, O_CREAT},    {0x400, O_TRUNC},        {0x800, O_EXCL},
      {0x20000, O_NOCTTY}, {0x100000, O_DIRECTORY}, {0x1000000, O_CLOEXEC}};
  int result = flags & O_ACCMODE;
  for (const auto &[darwinFlag, linuxFlag] : kFlags) {
    if ((flags & darwinFlag) != 0) result |= linuxFlag;
  }
  return result;
}

struct DarwinStatus {
  std::int32_t device;
  std::uint16_t mode, links;
  std::uint64_t number;
  std::uint32_t user, group;
  std::int32_t rawDevice, padding;
  timespec times[4];
  std::int64_t size, blocks;
  std::int32_t blockSize;
  std::uint32_t flags, generation;
  std::int32_t spare[5];
};
static_assert(sizeof(DarwinStatus) == 144);

int Convert(int result, const struct stat &from, DarwinStatus *to) {
  if (result != 0) return result;
  *to = DarwinStatus{
      .device = static_cast<std::int32_t>(from.st_dev),
      .mode = static_cast<std::uint16_t>(from.st_mode),
      .links = static_cast<std::uint16_t>(from.st_nlink),
      .number = from.st_ino,
      .user = from.st_uid,
      .group = from.st_gid,
      .times = {from.st_atim, from.st_mtim, from.st_ctim, from.st_ctim},
      .size = from.st_size,
      .blocks = from.st_blocks,
      .blockSize = static_cast<std::int32_t>(from.st_blksize)};
  return 0;
}

// On macOS a signal set is a 32-bit number.
sigset_t SetOf(std::uint32_t bits) {
  sigset_t set;
  sigemptyset(&set);
  for (int number = 1; number < 32; ++number) {
    if ((bits & (1U << (number - 1))) != 0) sigaddset(&set, number);
  }
  return set;
}

std::uint32_t BitsOf(const sigset_t &set) {
  std::uint32_t bits = 0;
  for (int number = 1; number < 32; ++number) {
    if (sigismember(&set, number) == 1) bits |= 1U << (number - 1);
  }
  return bits;
}

// macOS marks a mutex or condition variable that was statically initialised
// with a signature, where Linux needs zeros. Clears it before the first use.
void *WithoutSignature(void *object, std::size_t size) {
  std::uint64_t mark = 0;
  std::memcpy(&mark, object, sizeof mark);
  if (mark == 0x32AAABA7 || mark == 0x3CB0B1BB) {
    std::memset(object, 0, size);
  }
  return object;
}

// The classes of a character, with the bit values of macOS.
constexpr std::uint32_t KindOf(int c) {
  const bool upper = c >= 'A' && c <= 'Z';
  const bool lower = c >= 'a' && c <= 'z';
  const bool digit = c >= '0' && c <= '9';
  const bool hex = digit || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
  const bool seen = c > 0x20 && c < 0x7F;
  const bool space = c == ' ' || (c >= 9 && c <= 13);
  return (upper || lower ? 0x100u : 0) | (c < 0x20 || c == 0x7F ? 0x200u : 0) |
         (digit ? 0x400u : 0) | (seen ? 0x800u : 0) | (lower ? 0x1000u : 0) |
         (seen && !upper && !lower && !digit ? 0x2000u : 0) |
         (space ? 0x4000u : 0) | (upper ? 0x8000u : 0) | (hex ? 0x10000u : 0) |
         (c == ' ' || c == 9 ? 0x20000u : 0) |
         (seen || c == ' ' ? 0x40000u : 0);
}

struct RuneTable {
  char name[8], encoding[32];
  void *functions[2];
  std::int32_t invalid;
  std::array<std::uint32_t, 256> kinds;
};

constexpr RuneTable MakeTable() {
  RuneTable table{};
  for (int c = 0; c < 128; ++c) {
    table.kinds[static_cast<std::size_t>(c)] = KindOf(c);
  }
  return table;
}

template <typename Function>
Function *LinuxFunction(const char *name) {
  return reinterpret_cast<Function *>(dlsym(RTLD_DEFAULT, name));
}

}  // namespace

extern "C" {

RuneTable darwin__DefaultRuneLocale = MakeTable();
std::uintptr_t darwin___stack_chk_guard = 0x595E9FBD94FDA766;
FILE *darwin___stdoutp = stdout;
FILE *darwin___stderrp = stderr;

// Converts the number inside errno itself, because programs also write to it
// through the returned pointer.
int *darwin___error() {
  thread_local int lastConverted = -1;
  int *error = &errno;
  if (*error != lastConverted) *error = lastConverted = DarwinError(*error);
  return error;
}

char *darwin_strerror(int error) {
  for (const auto &[here, there] : kErrors) {
    if (there == error) return strerror(here);
  }
  return strerror(error);
}

int darwin_open(const char *path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const int mode = va_arg(rest, int);
  va_end(rest);
  return open(path, OpenFlags(flags), mode);
}
int darwin_mkostemp(char *name, int flags) {
  return mkostemp(name, OpenFlags(flags));
}
int darwin_fcntl(int file, int command, ...) {
  va_list rest;
  va_start(rest, command);
  const long value = va_arg(rest, long);
  va_end(rest);
  constexpr int kSync = 51;
  constexpr int kDuplicate = 67;
  if (command == kSync) return fsync(file);
  if (command == kDuplicate) return fcntl(file, F_DUPFD_CLOEXEC, value);
  if (command == F_SETFL) {
    return fcntl(file, F_SETFL, OpenFlags(static_cast<int>(value)));
  }
  return fcntl(file, command, value);
}
int darwin_ioctl(int file, unsigned long request, void *data) {
  constexpr unsigned long kWindowSize = 0x40087468;
  return ioctl(file, request == kWindowSize ? TIOCGWINSZ : request, data);
}

int darwin_stat(const char *path, DarwinStatus *to) {
  struct stat from;
  return Convert(stat(path, &from), from, to);
}
int darwin_lstat(const char *path, DarwinStatus *to) {
  struct stat from;
  return Convert(lstat(path, &from), from, to);
}
int darwin_fstat(int file, DarwinStatus *to) {
  struct stat from;
  return Convert(fstat(file, &from), from, to);
}

int darwin_pthread_sigmask(int how, const std::uint32_t *bits,
                           std::uint32_t *before) {
  sigset_t old;
  const sigset_t set = SetOf(bits == nullptr ? 0 : *bits);
  // The values of `how` start at 1 on macOS, and at 0 on Linux.
  const int result =
      pthread_sigmask(how - 1, bits == nullptr ? nullptr : &set, &old);
  if (before != nullptr) *before = BitsOf(old);
  return result;
}
int darwin_sigpending(std::uint32_t *bits) {
  sigset_t set;
  const int result = sigpending(&set);
  *bits = BitsOf(set);
  return result;
}
int darwin_sigwait(const std::uint32_t *bits, int *number) {
  const sigset_t set = SetOf(*bits);
  return sigwait(&set, number);
}
struct DarwinAction {
  void (*handler)(int);
  std::uint32_t mask;
  std::int32_t flags;
};
int darwin_sigaction(int number, const DarwinAction *action,
                     DarwinAction *before) {
  struct sigaction made {};
  struct sigaction old {};
  if (action != nullptr) {
    made.sa_handler = action->handler;
    made.sa_mask = SetOf(action->mask);
  }
  const int result =
      sigaction(number, action == nullptr ? nullptr : &made, &old);
  if (before != nullptr) {
    *before = {
        .handler = old.sa_handler, .mask = BitsOf(old.sa_mask), .flags = 0};
  }
  return result;
}

int darwin_pthread_mutex_lock(void *lock) {
  return pthread_mutex_lock(static_cast<pthread_mutex_t *>(
      WithoutSignature(lock, sizeof(pthread_mutex_t))));
}
int darwin_pthread_mutex_unlock(void *lock) {
  return pthread_mutex_unlock(static_cast<pthread_mutex_t *>(lock));
}
int darwin_pthread_key_create(unsigned long *key, void (*end)(void *)) {
  pthread_key_t made = 0;
  const int result = pthread_key_create(&made, end);
  *key = made;
  return result;
}

void darwin__ZNSt3__15mutex4lockEv(void *lock) {
  LinuxFunction<void(void *)>("_ZNSt3__15mutex4lockEv")(
      WithoutSignature(lock, sizeof(pthread_mutex_t)));
}
void darwin__ZNSt3__15mutexD1Ev(void * /*lock*/) {}
void darwin__ZNSt3__118condition_variable10notify_oneEv(void *condition) {
  LinuxFunction<void(void *)>("_ZNSt3__118condition_variable10notify_oneEv")(
      WithoutSignature(condition, sizeof(pthread_cond_t)));
}
void darwin__ZNSt3__118condition_variableD1Ev(void * /*condition*/) {}
constexpr char kTimedWait[] =
    "_ZNSt3__118condition_variable15__do_timed_waitERNS_11unique_lockINS_5mutex"
    "EEENS_6chrono10time_pointINS5_12system_clockENS5_8durationIxNS_5ratioILl1E"
    "Ll1000000000EEEEEEE";
void TimedWait(void *condition, void *lock, long until) asm(
    "darwin__ZNSt3__118condition_variable15__do_timed_waitERNS_11unique_lockINS"
    "_5mutexEEENS_6chrono10time_pointINS5_12system_clockENS5_8durationIxNS_5rat"
    "ioILl1ELl1000000000EEEEEEE");
void TimedWait(void *condition, void *lock, long until) {
  LinuxFunction<void(void *, void *, long)>(kTimedWait)(
      WithoutSignature(condition, sizeof(pthread_cond_t)), lock, until);
}

// The inline functions of std::ctype<char> are compiled into the program, where
// the character classes have the bit values of macOS. So programs get a facet
// with a table of those values.
const std::locale::facet *UseFacet(
    const std::locale *locale,
    std::locale::id *id) asm("darwin__ZNKSt3__16locale9use_facetERNS0_2idE");
const std::locale::facet *UseFacet(const std::locale *locale,
                                   std::locale::id *id) {
  using Facet = std::ctype<char>;
  using Use =
      const std::locale::facet *(const std::locale *, std::locale::id *);
  const auto *facet =
      LinuxFunction<Use>("_ZNKSt3__16locale9use_facetERNS0_2idE")(locale, id);
  if (id != &Facet::id) return facet;
  alignas(Facet) static std::array<char, sizeof(Facet)> made;
  constexpr std::size_t kTable = 16;  // behind the virtual table and the count
  std::memcpy(made.data(), static_cast<const void *>(facet), made.size());
  const std::uint32_t *table = darwin__DefaultRuneLocale.kinds.data();
  std::memcpy(made.data() + kTable, &table, sizeof table);
  return reinterpret_cast<const std::locale::facet *>(made.data());
}

int darwin___maskrune(int c, unsigned long kinds) {
  if (c < 0 || c > 255) return 0;
  return static_cast<int>(
      darwin__DefaultRuneLocale.kinds[static_cast<std::size_t>(c)] & kinds);
}
int darwin___tolower(int c) { return tolower(c); }
int darwin___toupper(int c) { return toupper(c); }
void darwin___bzero(void *at, std::size_t size) { std::memset(at, 0, size); }
int darwin_statfs(const char * /*path*/, void *to) {
  constexpr std::size_t kSize = 2168;
  constexpr std::size_t kMountPoint = 88;
  std::memset(to, 0, kSize);
  std::memcpy(static_cast<char *>(to) + kMountPoint, "/", 2);
  return 0;
}
char **darwin_words;
char ***darwin__NSGetArgv() { return &darwin_words; }
int *darwin__NSGetArgc() {
  static int count;
  for (count = 0; darwin_words[count] != nullptr;) ++count;
  return &count;
}
void darwin_dyld_stub_binder() { ztk::loader::Fail("a name was not bound"); }

}  // extern "C"
