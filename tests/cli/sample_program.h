// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_CLI_SAMPLE_PROGRAM_H_
#define ZTK_TESTS_CLI_SAMPLE_PROGRAM_H_

#include "cli/program.h"

namespace ztk::test {

// A program "mix" with the commands "show", "input set" and "run", whose exit
// statuses are 10, 11 and 12.
cli::Program SampleProgram();

}  // namespace ztk::test

#endif  // ZTK_TESTS_CLI_SAMPLE_PROGRAM_H_
