// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_COMMANDS_EXPORTED_FILE_H_
#define ZTK_TOOLS_ZTK_COMMANDS_EXPORTED_FILE_H_

namespace ztk::program {

// The version of the format that `ztk export` writes and `ztk import` reads.
inline constexpr int kExportVersion = 1;

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_EXPORTED_FILE_H_
