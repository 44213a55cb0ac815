// SPDX-License-Identifier: MIT
//
// A client of the library, which the tests start as another process. Its
// arguments are a command. It prints one line for each event. It runs until its
// standard input ends, so that no notification that it has posted is lost.
#ifndef ZTK_TESTS_MACOS_FOUNDATION_CLIENT_H_
#define ZTK_TESTS_MACOS_FOUNDATION_CLIENT_H_

#include <string>

namespace ztk::test {

// The path of this program, for starting it as a client.
std::string OwnProgram();

// The first argument of a client.
inline constexpr char kClient[] = "--client";

// The commands are:
// "listen WORD...": registers the families "input", "output", "boost" and
// "midi" in this order, or unregisters a family with "-" before its word. "set
// WORD...": calls a setter for each word. "input:2:5" sets channel 2 to index
// 5, "boost:1" sets index 1. "warn LANGUAGE...": prints the warning in each
// language, with a mixer attached.
int RunClient(int count, char **words);

}  // namespace ztk::test

#endif  // ZTK_TESTS_MACOS_FOUNDATION_CLIENT_H_
