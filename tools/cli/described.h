// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_CLI_DESCRIBED_H_
#define ZTK_TOOLS_CLI_DESCRIBED_H_

#include "cli/program.h"

namespace ztk::cli {

// The program that is built with this: each defines its own.
Program Described();

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_DESCRIBED_H_
