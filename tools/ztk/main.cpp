// SPDX-License-Identifier: MIT
//
// ztk: the settings of the mixer from a terminal or a script.
#include "ztk/command_line.h"
#include "ztk/output.h"

int main(int argc, char **argv) {
  ztk::program::PrepareStreams();
  return ztk::program::RunCommandLine({argv + (argc > 0 ? 1 : 0), argv + argc});
}
