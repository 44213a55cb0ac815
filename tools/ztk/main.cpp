// SPDX-License-Identifier: MIT
//
// ztk: the mixer's settings from a terminal or a script.
#include <exception>

#include "ztk/command_line.h"
#include "ztk/output.h"

int main(int argc, char **argv) {
  using namespace ztk::program;
  PrepareStreams();
  Call call;
  Report report;
  try {
    report = Run({argv + (argc > 0 ? 1 : 0), argv + argc}, &call);
  } catch (const Failure &failure) {
    report.problem = failure.problem();
  } catch (const std::exception &error) {
    report.problem = {.exit = ExitCode::Failed, .message = error.what()};
  }
  return Print(call.command, report, call.json);
}
