// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_TEMPORARY_ROOT_H_
#define ZTK_TESTS_SUPPORT_TEMPORARY_ROOT_H_

#include <map>
#include <string>

namespace ztk::test {

// The contents of files by their absolute paths.
using RootFiles = std::map<std::string, std::string>;

// Moves this process into a new mount namespace. Its root contains everything
// of the real root except the content of /mnt, and also these files, which may
// replace real ones. No other process sees the files. Their paths must not
// contain a symbolic link. Must be called in a forked child before it runs a
// program. Returns an empty text on success, else the error.
std::string EnterTemporaryRoot(const RootFiles &files);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_TEMPORARY_ROOT_H_
