// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_C_LOCALE_H_
#define ZTK_PLATFORM_LINUX_C_LOCALE_H_

#include <locale.h>

namespace ztk::platform {

// Has the calling thread read and write numbers the C way while it lives: in
// a locale with a decimal comma libplist would cut 3.25 to 3. Other threads
// and the program's own locale are not touched.
class ScopedCLocale {
 public:
  ScopedCLocale() : previous_(uselocale(CLocale())) {}
  ~ScopedCLocale() { uselocale(previous_); }
  ScopedCLocale(const ScopedCLocale &) = delete;
  ScopedCLocale &operator=(const ScopedCLocale &) = delete;

 private:
  // Made once and kept until the process ends. Were it null, uselocale() would
  // change nothing.
  static locale_t CLocale() {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
  }

  locale_t previous_;
};

}  // namespace ztk::platform

#endif  // ZTK_PLATFORM_LINUX_C_LOCALE_H_
