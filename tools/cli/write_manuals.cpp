// SPDX-License-Identifier: MIT
//
// Writes the manual page and the completions of the program whose table is
// linked. It runs during the build and is not installed.
#include <fstream>
#include <iostream>
#include <string>

#include "cli/completion.h"
#include "cli/man_page.h"
#include "cli/program.h"

namespace {

bool Write(const std::string &file, const std::string &text) {
  std::ofstream stream(file, std::ios::binary);
  stream << text;
  stream.close();
  if (!stream) std::cerr << "write-manuals: cannot write " << file << "\n";
  return static_cast<bool>(stream);
}

}  // namespace

int main(int argc, char **argv) {
  using namespace ztk::cli;
  if (argc != 4) {
    std::cerr << "usage: write-manuals FOLDER DATE SOURCE\n";
    return 2;
  }
  const std::string folder = std::string(argv[1]) + "/";
  const Program program = ThisProgram();
  const std::string &name = program.name;
  const bool written =
      Write(folder + name + ".1", ManPage(program, argv[2], argv[3])) &&
      Write(folder + name + ".bash", CompletionScript(name, Shell::Bash)) &&
      Write(folder + name + ".fish", CompletionScript(name, Shell::Fish)) &&
      Write(folder + "_" + name, CompletionScript(name, Shell::Zsh));
  return written ? 0 : 1;
}
