// SPDX-License-Identifier: MIT
#ifndef ZTK_PLATFORM_LINUX_BUNDLE_SEARCH_H_
#define ZTK_PLATFORM_LINUX_BUNDLE_SEARCH_H_

#include <string>
#include <string_view>

namespace ztk::platform::bundle {

// The path itself when it is a folder; else the folder of the same name in the
// maker's folder below `dataFolder`; empty when neither exists.
std::string FindBundle(std::string_view path, std::string_view dataFolder);

}  // namespace ztk::platform::bundle

#endif  // ZTK_PLATFORM_LINUX_BUNDLE_SEARCH_H_
