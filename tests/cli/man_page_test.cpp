// SPDX-License-Identifier: MIT
#include "cli/man_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample_program.h"

namespace ztk::test {
namespace {

using testing::HasSubstr;

std::string Page() {
  return cli::ManPage(SampleProgram(), "2024-01-02", "Mix 1.2.3");
}

std::vector<std::string> HeadingsOf(const std::string &page) {
  std::vector<std::string> headings;
  for (std::size_t at = page.find("\n.SH \""); at != std::string::npos;
       at = page.find("\n.SH \"", at + 1)) {
    const std::size_t begin = at + 6;
    headings.push_back(page.substr(begin, page.find('"', begin) - begin));
  }
  return headings;
}

TEST(ManPage, HasItsSectionsInOrder) {
  EXPECT_THAT(Page(),
              testing::StartsWith(".TH \"MIX\" 1 2024-01-02 \"Mix 1.2.3\"\n"));
  EXPECT_THAT(HeadingsOf(Page()),
              testing::ElementsAre(
                  "NAME", "SYNOPSIS", "EXAMPLES", "DESCRIPTION", "TERMS",
                  "OPTIONS", "COMMANDS", "EXIT STATUS", "FILES", "SEE ALSO"));
}

TEST(ManPage, DescribesACommandWithOptionsNoteAndExamples) {
  EXPECT_THAT(Page(),
              HasSubstr(".SS \"show\"\n"
                        "\\fBmix show\\fR [\\fB\\-\\-mixer\\fR \\fIM\\fR] "
                        "[\\fB\\-\\-log\\fR \\fIFILE\\fR...]\n"
                        ".PP\nShow the mixers.\n"
                        ".TP\n\\fB\\-m\\fR, \\fB\\-\\-mixer\\fR \\fIM\\fR\n"
                        "Number of the mixer.\n"));
  EXPECT_THAT(Page(), HasSubstr("Mixers are numbered.\n"));
  EXPECT_THAT(Page(), HasSubstr("mix show \\-m 2\n"));
}

TEST(ManPage, TellsTheNoteOfAGroupOnce) {
  const std::string page = Page();
  const std::size_t first = page.find("Inputs are inputs.");
  ASSERT_NE(first, std::string::npos);
  EXPECT_EQ(page.find("Inputs are inputs.", first + 1), std::string::npos);
  EXPECT_THAT(page, HasSubstr(".SS \"input\"\n"));
  EXPECT_THAT(page, testing::Not(HasSubstr(".SS \"input set\"\n")));
  EXPECT_THAT(page, HasSubstr("\\fBmix input set\\fR [\\fB\\-\\-dry\\-run\\fR] "
                              "\\fICHANNEL\\fR [\\fICHOICE\\fR...]\n"
                              "Choose a source.\n"));
}

}  // namespace
}  // namespace ztk::test
