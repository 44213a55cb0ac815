// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_PLANTED_ROOT_H_
#define ZTK_TESTS_SUPPORT_PLANTED_ROOT_H_

#include <map>
#include <string>

namespace ztk::test {

// Files by absolute path, with what they hold.
using Planted = std::map<std::string, std::string>;

// Puts this process (a forked child that is about to run a program) into a
// mount namespace whose root shows everything that the real one does, and
// these files besides, or in the place of real ones. Nothing outside the
// process sees them. Their paths must lead through no symbolic link. Answers
// why it cannot be done here, or an empty text.
std::string EnterPlantedRoot(const Planted &files);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_PLANTED_ROOT_H_
