// SPDX-License-Identifier: MIT
//
// Runs ztk-virtual-mixer as a user does and returns its output.
#ifndef ZTK_TESTS_VIRTUAL_MIXER_TOOL_H_
#define ZTK_TESTS_VIRTUAL_MIXER_TOOL_H_

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/run_program.h"

namespace ztk::virtual_mixer {

using test::SplitLines;
using ToolResult = test::ProgramResult;

// Each test has a folder of its own, which is TMPDIR of its programs.
class ToolTest : public testing::Test {
 protected:
  ToolTest();
  ~ToolTest() override;

  // Runs the arguments as they are.
  ToolResult Tool(const std::vector<std::string> &arguments) const;
  // Runs a shell script in a sandbox: "run OPTIONS -- sh -c SCRIPT". In the
  // script, $PROBE, $UDEV_PROBE and $TOOL are the programs and $DIR is this
  // folder.
  ToolResult Inside(const std::vector<std::string> &options,
                    const std::string &script) const;

  const std::string &Folder() const { return folder_; }
  // Lines of a file in the folder.
  std::vector<std::string> Lines(const std::string &name) const;
  // The files that the sandboxes have left in TMPDIR.
  std::vector<std::string> LeftBehind() const;

 private:
  ToolResult Run(const std::vector<std::string> &words) const;

  std::string folder_;
};

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TESTS_VIRTUAL_MIXER_TOOL_H_
