// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_CLI_MAN_PAGE_H_
#define ZTK_TOOLS_CLI_MAN_PAGE_H_

#include <string>

#include "cli/program.h"

namespace ztk::cli {

// The manual page of a program, in section 1.
std::string ManPage(const Program &program, const std::string &date,
                    const std::string &source);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_MAN_PAGE_H_
