// SPDX-License-Identifier: MIT
//
// ztk-virtual-mixer: runs programs with virtual mixers.
#include <unistd.h>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "cli/parser.h"
#include "cli/terminal.h"

namespace {

using ztk::cli::Invocation;

constexpr int kFailed = 1;
constexpr int kUsage = 2;

int Complain(const std::string &message, int status) {
  std::cerr << ztk::cli::MessageLine("ztk-virtual-mixer", message);
  return status;
}

int Run(const std::vector<std::string> &words) {
  const ztk::cli::Program program = ztk::cli::ThisProgram();
  const Invocation call = ztk::cli::Parse(program, words);
  if (call.command != nullptr) return call.command->run(call.arguments);
  if (call.kind == Invocation::Kind::Help) {
    std::cout << ztk::cli::WrapLines(
        ztk::cli::FillParagraphs(call.text, ztk::cli::Columns(STDOUT_FILENO)),
        {.columns = 0, .emphasis = false});
  } else {
    std::cout << call.text;
  }
  return 0;
}

}  // namespace

int main(int argc, char **argv) {
  try {
    return Run({argv + (argc > 0 ? 1 : 0), argv + argc});
  } catch (const ztk::cli::UsageError &error) {
    return Complain(error.what(), kUsage);
  } catch (const std::exception &error) {
    return Complain(error.what(), kFailed);
  }
}
