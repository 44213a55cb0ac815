// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_LANGUAGES_H_
#define ZTK_PLATFORM_LINUX_LANGUAGES_H_

#include <string>
#include <string_view>
#include <vector>

namespace ztk::platform::bundle {

// Returns the languages that the user prefers as locale names, the best first:
// the entries of LANGUAGE, then the first of LC_ALL, LC_MESSAGES and LANG that
// is set. The rules are those of gettext: LANGUAGE is ignored if none of the
// three is set or the locale is "C" or "POSIX". An entry "C" or "POSIX" in
// LANGUAGE ends the list. English is not added, because callers use it last in
// any case.
std::vector<std::string> PreferredLocales();

// Returns the names of the <name>.lproj folders for a locale such as
// "pt_BR.UTF-8", the best first: the locale without the character set, for
// Chinese "zh_TW" or "zh_CN", the language alone, the English name of the
// language, which older bundles use. Empty if the text is not a locale name.
std::vector<std::string> FolderNames(std::string_view locale);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_LINUX_LANGUAGES_H_
