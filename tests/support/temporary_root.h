// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_TEMPORARY_ROOT_H_
#define ZTK_TESTS_SUPPORT_TEMPORARY_ROOT_H_

#include <map>
#include <string>

namespace ztk::test {

// Files with their contents, by absolute path.
using RootFiles = std::map<std::string, std::string>;

// Moves this process (a forked child that is about to run a program) into a
// mount namespace whose root has everything of the real one, and these files in
// addition or in place of real ones. No other process sees them. Their paths
// must not contain a symbolic link. Returns why this is not possible here;
// empty on success.
std::string EnterTemporaryRoot(const RootFiles &files);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_TEMPORARY_ROOT_H_
