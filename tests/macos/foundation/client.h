// SPDX-License-Identifier: MIT
//
// Another process of the tests: a client of the library, told by its arguments
// what to do. It prints one line for each thing that happens, and lives on
// until its standard input ends, so that nothing it has sent is lost on the
// way.
#ifndef ZTK_TESTS_MACOS_FOUNDATION_CLIENT_H_
#define ZTK_TESTS_MACOS_FOUNDATION_CLIENT_H_

#include <string>

namespace ztk::test {

// The path of this program, to run it once more.
std::string OwnProgram();

// The first argument of a client.
inline constexpr char kClient[] = "--client";

// "listen WORD...": registers the families "input", "output", "boost" and
// "midi", or unregisters them with a "-" before, in the order given.
// "set WORD...": calls a family's setter for each; "input:2:5" sets channel 2
// to index 5, "boost:1" index 1.
// "warn LANGUAGE...": prints the warning in each, with a mixer attached.
int RunClient(int count, char **words);

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_FOUNDATION_CLIENT_H_
