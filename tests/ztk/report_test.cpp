// SPDX-License-Identifier: MIT
#include "ztk/report.h"

#include <gtest/gtest.h>

namespace ztk::program {
namespace {

TEST(JsonLine, PutsTheFixedFieldsFirst) {
  Report report;
  report.fields["result"] = 100;
  EXPECT_EQ(JsonLine("input set", report),
            R"({"schema":1,"command":"input set","ok":true,"result":100})");
}

TEST(JsonLine, TellsWarningsAndTheProblem) {
  Report report;
  report.warnings = {"first"};
  report.problem = {.exit = ExitCode::NoMixer, .message = "none"};
  EXPECT_EQ(JsonLine("apply", report),
            R"({"schema":1,"command":"apply","ok":false,"warnings":["first"],)"
            R"("error":{"code":"no-mixer","message":"none"}})");
}

TEST(JsonLine, StaysJsonWhenTheUserTypesSomethingElseThanUtf8) {
  Report report;
  report.problem = {.exit = ExitCode::Usage, .message = "a\xFF\"\n"};
  const std::string line = JsonLine("", report);
  EXPECT_NE(line.find("\"a\xEF\xBF\xBD\\\"\\n\""), std::string::npos) << line;
}

TEST(ErrorWord, NamesEveryExitCode) {
  EXPECT_STREQ(ErrorWord(ExitCode::Found), "found");
  EXPECT_STREQ(ErrorWord(ExitCode::Usage), "usage");
  EXPECT_STREQ(ErrorWord(ExitCode::NoMixer), "no-mixer");
  EXPECT_STREQ(ErrorWord(ExitCode::Rejected), "rejected");
  EXPECT_STREQ(ErrorWord(ExitCode::Failed), "failed");
  EXPECT_STREQ(ErrorWord(ExitCode::SomeMixers), "some-mixers");
  EXPECT_STREQ(ErrorWord(ExitCode::NotRemembered), "not-remembered");
}

}  // namespace
}  // namespace ztk::program
