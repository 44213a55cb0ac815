// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_LANGUAGES_H_
#define ZTK_PLATFORM_LINUX_LANGUAGES_H_

#include <string>
#include <string_view>
#include <vector>

namespace ztk::platform::bundle {

// The languages that the user prefers, as locale names, best first: the list of
// LANGUAGE, then the first of LC_ALL, LC_MESSAGES and LANG that is set. As with
// gettext, LANGUAGE does not count when that locale is unset, "C" or "POSIX",
// and such an entry in the list ends it. English is not in the list, because it
// always comes last.
std::vector<std::string> PreferredLocales();

// Names of the <name>.lproj folders to look for, best first, for a locale such
// as "pt_BR.UTF-8": with the country, with the script's usual country for
// Chinese, the language alone, its English name as older bundles have it. Empty
// for a text that is not a locale name.
std::vector<std::string> FolderNames(std::string_view locale);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_LINUX_LANGUAGES_H_
