// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_C_LOCALE_H_
#define ZTK_PLATFORM_LINUX_C_LOCALE_H_

#include <locale.h>

namespace ztk::platform {

// While it exists, the calling thread reads and writes numbers as in the C
// locale: in a locale with a decimal comma libplist would read 3.25 as 3. Other
// threads and the locale of the program do not change.
class ScopedCLocale {
 public:
  ScopedCLocale() : previous_(uselocale(CLocale())) {}
  ~ScopedCLocale() { uselocale(previous_); }
  ScopedCLocale(const ScopedCLocale &) = delete;
  ScopedCLocale &operator=(const ScopedCLocale &) = delete;

 private:
  // Made once and kept until the process ends. If it is null, uselocale()
  // changes nothing.
  static locale_t CLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
  }

  locale_t previous_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_LINUX_C_LOCALE_H_
