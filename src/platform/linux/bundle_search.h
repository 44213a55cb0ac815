// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_BUNDLE_SEARCH_H_
#define ZTK_PLATFORM_LINUX_BUNDLE_SEARCH_H_

#include <string>
#include <string_view>

namespace ztk::platform::bundle {

// Returns the path itself if it is a folder. Otherwise returns the folder of
// the same name in the maker's folder below `dataFolder`. Empty if neither
// exists.
std::string FindBundle(std::string_view path, std::string_view dataFolder);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_LINUX_BUNDLE_SEARCH_H_
