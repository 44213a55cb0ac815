// SPDX-License-Identifier: MIT
#include "cli/help.h"

#include <gtest/gtest.h>

#include "cli/terminal.h"
#include "sample_program.h"

namespace ztk::test {
namespace {

std::string Shown(const std::string &path, std::size_t columns) {
  return cli::WrapLines(
      cli::FillParagraphs(cli::Help(SampleProgram(), path), columns),
      {.columns = 0, .emphasis = false});
}

TEST(Help, OfTheProgramListsCommandsAndExitStatuses) {
  EXPECT_EQ(Shown("", 0),
            "Settings of a mixer.\n"
            "\n"
            "Usage: mix [OPTIONS] COMMAND\n"
            "\n"
            "Commands:\n"
            "  show              Show the mixers\n"
            "  input             The inputs\n"
            "  run               Run a command\n"
            "\n"
            "Options:\n"
            "  --json            Write JSON\n"
            "  -h, --help        Show this help\n"
            "  -V, --version     Show the version\n"
            "\n"
            "Exit status:\n"
            "    0  done\n"
            "  126, 127\n"
            "       cannot run\n"
            "\n"
            "Example: mix show\n");
}

TEST(Help, OfAGroupListsItsCommands) {
  EXPECT_EQ(Shown("input", 0),
            "The inputs\n"
            "\n"
            "Usage: mix input [OPTIONS] COMMAND\n"
            "\n"
            "Commands:\n"
            "  set               Choose a source\n"
            "\n"
            "Options:\n"
            "  --json            Write JSON\n"
            "  -h, --help        Show this help\n"
            "  -V, --version     Show the version\n"
            "\n"
            "Inputs are inputs.\n"
            "\n"
            "Example: mix input set 1 mic\n");
}

TEST(Help, OfACommandTellsArgumentsOptionsAndExamples) {
  EXPECT_EQ(Shown("input set", 0),
            "Choose a source\n"
            "\n"
            "Usage: mix input set [OPTIONS] CHANNEL [CHOICE...]\n"
            "\n"
            "Arguments:\n"
            "  CHANNEL           Channel, 1 to 4\n"
            "  CHOICE            Text of the choice\n"
            "\n"
            "Options:\n"
            "  --dry-run         Do nothing\n"
            "  --json            Write JSON\n"
            "  -h, --help        Show this help\n"
            "  -V, --version     Show the version\n"
            "\n"
            "Inputs are inputs.\n"
            "\n"
            "Example: mix input set 1 mic\n");
  EXPECT_NE(Shown("show", 0).find("\nExamples:\n  mix show\n  mix show -m 2\n"),
            std::string::npos);
  EXPECT_NE(Shown("run", 0).find("Usage: mix run [OPTIONS] [-- COMMAND...]\n"),
            std::string::npos);
}

TEST(Help, FitsIntoANarrowTerminal) {
  EXPECT_NE(Shown("input set", 30).find("Usage:\n  mix input set"),
            std::string::npos);
  EXPECT_NE(Shown("", 26).find("  -V, --version     Show\n    the version\n"),
            std::string::npos)
      << Shown("", 26);
}

}  // namespace
}  // namespace ztk::test
