// SPDX-License-Identifier: MIT
//
// Runs ztk as a user does: in a sandbox with virtual mixers, with a message
// bus and a home of the test's own.
#ifndef ZTK_TESTS_ZTK_CLI_WORLD_H_
#define ZTK_TESTS_ZTK_CLI_WORLD_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/private_bus.h"
#include "support/run_program.h"
#include "support/temp_home.h"
#include "support/temporary_root.h"

namespace ztk::test {

using Json = nlohmann::json;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using Result = ProgramResult;

class CliWorld : public testing::Test {
 protected:
  CliWorld();
  void SetUp() override;

  // Runs a shell script in a sandbox with these options of "ztk-virtual-mixer
  // run". In the script, $DIR is a folder for files, and ztk and
  // ztk-virtual-mixer are in the PATH. The log of requests starts anew.
  Result Inside(const std::vector<std::string> &options,
                const std::string &script);
  Result OneMixer(const std::string &script) {
    return Inside({"-n", "1"}, script);
  }
  Result NoMixer(const std::string &script) {
    return Inside({"-n", "0"}, script);
  }
  // The same with these files in addition to those of the real system; the
  // status is kNoTemporaryRoot when this system does not allow that.
  static constexpr int kNoTemporaryRoot = 98;
  Result InTemporaryRoot(const RootFiles &files,
                         const std::vector<std::string> &options,
                         const std::string &script);

  // The requests that the mixers received during the last run.
  std::vector<std::string> Requests() const;
  // The requests among them that change something.
  std::vector<std::string> Writes() const;
  // A file that a script has left in $DIR.
  std::string File(const std::string &name) const;
  std::vector<std::string> Lines(const std::string &name) const;

  // Writes the settings file of a model.
  void Remember(const std::string &model,
                const std::vector<std::pair<std::string, int>> &values);
  bool HasSettings(const std::string &model) const;

  TempHome home_;
  PrivateBus bus_;
};

// The line at this position, counted from 0; empty when there is none.
std::string Line(const std::string &text, std::size_t position);
std::string LastLine(const std::string &text);

// Parses the output, which must be a single JSON object; else the test fails.
Json OneObject(const std::string &out);

}  // namespace ztk::test

#endif  // ZTK_TESTS_ZTK_CLI_WORLD_H_
