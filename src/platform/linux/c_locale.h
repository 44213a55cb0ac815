// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_C_LOCALE_H_
#define ZTK_PLATFORM_LINUX_C_LOCALE_H_

#include <locale.h>

namespace ztk::platform {

// While this object exists, the calling thread reads and writes numbers as in
// the C locale. In a locale with a decimal comma, libplist would read 3.25
// as 3. The locale of other threads and of the program does not change.
class ScopedCLocale {
 public:
  ScopedCLocale() : previous_(uselocale(CLocale())) {}
  ~ScopedCLocale() { uselocale(previous_); }
  ScopedCLocale(const ScopedCLocale &) = delete;
  ScopedCLocale &operator=(const ScopedCLocale &) = delete;

 private:
  // The locale is made once and never freed. If it could not be made, it is
  // null and uselocale() changes nothing.
  static locale_t CLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
  }

  locale_t previous_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_LINUX_C_LOCALE_H_
