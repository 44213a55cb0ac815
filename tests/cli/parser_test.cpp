// SPDX-License-Identifier: MIT
#include "cli/parser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample_program.h"

namespace ztk::test {
namespace {

using cli::Invocation;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Words = std::vector<std::string>;

const cli::Program &Sample() {
  static const cli::Program program = SampleProgram();
  return program;
}

Invocation Parsed(const Words &words) { return cli::Parse(Sample(), words); }

std::string ErrorOf(const Words &words) {
  try {
    Parsed(words);
  } catch (const cli::UsageError &error) {
    return error.what();
  }
  return "no error";
}

TEST(Parse, FindsTheCommandAndItsArguments) {
  const Invocation call =
      Parsed({"input", "set", "2", "post", "ch2", "--dry-run", "--json"});
  ASSERT_NE(call.command, nullptr);
  EXPECT_EQ(call.kind, Invocation::Kind::Run);
  EXPECT_EQ(call.path, "input set");
  EXPECT_EQ(call.command->run(call.arguments), 11);
  EXPECT_EQ(call.arguments.One("CHANNEL"), "2");
  EXPECT_EQ(call.arguments.One("CHOICE"), "post ch2");
  EXPECT_TRUE(call.arguments.Has("--dry-run"));
  EXPECT_TRUE(call.arguments.Has("--json"));
  EXPECT_FALSE(call.arguments.Has("--help"));
}

TEST(Parse, TakesCommonOptionsAnywhere) {
  for (const Words &words :
       {Words{"--json", "show"}, Words{"show", "--json"}}) {
    EXPECT_TRUE(Parsed(words).arguments.Has("--json"));
  }
  EXPECT_TRUE(Parsed({"input", "--json", "set", "1"}).arguments.Has("--json"));
}

TEST(Parse, LeavesOutWhatWasNotGiven) {
  const Invocation call = Parsed({"input", "set", "1"});
  EXPECT_EQ(call.arguments.Find("CHOICE"), nullptr);
  EXPECT_EQ(call.arguments.One("CHOICE"), "");
  EXPECT_THAT(call.arguments.All("CHOICE"), IsEmpty());
}

TEST(Parse, KeepsAnEmptyWord) {
  const std::string *choice =
      Parsed({"input", "set", "1", ""}).arguments.Find("CHOICE");
  EXPECT_NE(choice, nullptr);
}

TEST(Parse, TakesEveryFormOfAnOption) {
  for (const Words &words :
       {Words{"show", "-m", "2"}, Words{"show", "--mixer", "2"},
        Words{"show", "--mixer=2"}, Words{"show", "-m2"}}) {
    EXPECT_EQ(Parsed(words).arguments.One("--mixer"), "2");
  }
  EXPECT_THAT(Parsed({"show", "--log", "a", "--log=b"}).arguments.All("--log"),
              ElementsAre("a", "b"));
}

TEST(Parse, TakesTheWordAfterAnOptionAsItsValue) {
  EXPECT_EQ(Parsed({"show", "-m", "--json"}).arguments.One("--mixer"),
            "--json");
  EXPECT_EQ(Parsed({"show", "--mixer=a=b"}).arguments.One("--mixer"), "a=b");
  for (const Words &words : {Words{"show", "--mixer="}, {"show", "-m", ""}}) {
    const Invocation call = Parsed(words);
    const std::string *mixer = call.arguments.Find("--mixer");
    ASSERT_NE(mixer, nullptr);
    EXPECT_EQ(*mixer, "");
  }
}

TEST(Parse, TakesAPartOfALongNameThatFitsOneOption) {
  EXPECT_EQ(Parsed({"show", "--mix=2"}).arguments.One("--mixer"), "2");
  EXPECT_TRUE(Parsed({"show", "--js"}).arguments.Has("--json"));
}

TEST(Parse, BeginsAnewAfterAWordThatWasNotReadToItsEnd) {
  EXPECT_THAT(ErrorOf({"show", "-xh"}), StartsWith("no option \"-xh\""));
  EXPECT_EQ(Parsed({"input", "set", "1", "-5"}).arguments.One("CHOICE"), "-5");
  EXPECT_EQ(Parsed({"show", "-m2"}).arguments.One("--mixer"), "2");
}

TEST(Parse, TakesANegativeNumberAsAWord) {
  EXPECT_EQ(
      Parsed({"input", "set", "-5", "-9", "--json"}).arguments.One("CHANNEL"),
      "-5");
  const Invocation call = Parsed({"input", "set", "1", "-5", "dB"});
  EXPECT_EQ(call.arguments.One("CHOICE"), "-5 dB");
  EXPECT_THAT(ErrorOf({"show", "-5"}), StartsWith("no option \"-5\""));
}

TEST(Parse, TakesSeveralShortOptionsInOneWord) {
  EXPECT_EQ(Parsed({"show", "-hm2"}).kind, Invocation::Kind::Help);
  EXPECT_THAT(ErrorOf({"show", "-m2", "-hm3"}),
              StartsWith("--mixer needs exactly one value"));
  EXPECT_EQ(Parsed({"show", "-Vh"}).kind, Invocation::Kind::Help);
  EXPECT_THAT(ErrorOf({"show", "-xh"}), StartsWith("no option \"-xh\""));
}

TEST(Parse, LetsTheLastFormOfAFlagDecide) {
  for (const Words &words :
       {Words{"show", "--json=true"}, Words{"show", "--json="},
        Words{"show", "--json=false", "--json"}}) {
    EXPECT_TRUE(Parsed(words).arguments.Has("--json"));
  }
  EXPECT_FALSE(
      Parsed({"show", "--json", "--json=false"}).arguments.Has("--json"));
}

TEST(Parse, TakesWordsBehindTheMarkAsTheyAre) {
  EXPECT_EQ(
      Parsed({"input", "set", "1", "--", "-5", "dB"}).arguments.One("CHOICE"),
      "-5 dB");
  EXPECT_THAT(Parsed({"run", "--", "show", "--json"}).arguments.command,
              ElementsAre("show", "--json"));
  EXPECT_FALSE(Parsed({"run", "--", "x", "--json"}).arguments.Has("--json"));
}

TEST(Parse, AnswersQuestionsForHelpAndVersion) {
  const struct {
    Words words;
    Invocation::Kind kind;
    const char *path;
  } rows[] = {{{"--help"}, Invocation::Kind::Help, ""},
              {{"help"}, Invocation::Kind::Help, ""},
              {{"help", "input"}, Invocation::Kind::Help, "input"},
              {{"input", "--help"}, Invocation::Kind::Help, "input"},
              {{"help", "input", "set"}, Invocation::Kind::Help, "input set"},
              {{"input", "set", "-h"}, Invocation::Kind::Help, "input set"},
              {{"show", "x", "--help"}, Invocation::Kind::Help, "show"},
              {{"-V"}, Invocation::Kind::Version, ""},
              {{"version"}, Invocation::Kind::Version, ""},
              {{"--json", "--version"}, Invocation::Kind::Version, ""}};
  for (const auto &row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.words));
    const Invocation call = Parsed(row.words);
    EXPECT_EQ(call.kind, row.kind);
    EXPECT_EQ(call.path, row.path);
    EXPECT_EQ(call.command, nullptr);
  }
  EXPECT_EQ(Parsed({"--version"}).text, "mix 1.2.3\n");
}

TEST(Parse, SaysWhatIsWrongWhatIsAcceptedAndWhatToDo) {
  const struct {
    Words words;
    const char *message;
  } rows[] = {
      {{}, "a command is missing; accepted: show, input, run; see mix --help"},
      {{"input"},
       "a command is missing after \"input\"; accepted: set; see mix input "
       "--help"},
      {{"shwo"},
       "no command \"shwo\"; nearest: show; accepted: show, input, run; see "
       "mix --help"},
      {{"set"},
       "no command \"set\"; nearest: input set; accepted: show, input, run; "
       "see mix --help"},
      {{"input", "st"},
       "no command \"st\" after \"input\"; accepted: set; see mix input "
       "--help"},
      {{"--jsn"},
       "no option \"--jsn\"; nearest: --json; accepted: --json, --help, "
       "--version; see mix --help"},
      {{"show", "--mixr", "2"},
       "no option \"--mixr\" after \"show\"; nearest: --mixer; accepted: "
       "--mixer, --log, --json, --help, --version; see mix show --help"},
      {{"show", "json"},
       "unexpected word \"json\" after \"show\"; nearest: --json; see mix "
       "show --help"},
      {{"run", "ls"},
       "unexpected word \"ls\" after \"run\"; put \"--\" before the "
       "command; "
       "see mix run --help"},
      {{"input", "set"},
       "CHANNEL is missing after \"input set\"; accepted: 1, 2; "
       "see mix input set --help"},
      {{"help", "shw"},
       "no command \"shw\"; nearest: show; accepted: show, input, run; see "
       "mix --help"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.message);
    EXPECT_EQ(ErrorOf(row.words), row.message);
  }
  for (const Words &words :
       {Words{"show", "--mixer"}, Words{"show", "-m", "1", "--mixer", "2"}}) {
    EXPECT_EQ(ErrorOf(words),
              "--mixer needs exactly one value; accepted: 1, 2; see "
              "mix show --help");
  }
}

TEST(Parse, KnowsThePathOfAnError) {
  try {
    Parsed({"input", "set", "1", "--nope"});
    FAIL();
  } catch (const cli::UsageError &error) {
    EXPECT_EQ(error.path(), "input set");
  }
}

TEST(FirstWord, LeadsToTheCommandWhereItAloneDecides) {
  EXPECT_EQ(cli::FirstWord({"input", "set"}), "input");
  EXPECT_EQ(cli::FirstWord({"--json", "show"}), "show");
  for (const Words &words : {Words{}, Words{"--help"}, Words{"help", "show"},
                             Words{"__complete", "sh"}}) {
    EXPECT_EQ(cli::FirstWord(words), "");
  }
}

TEST(Parse, AnswersCompletions) {
  const Invocation call = Parsed({"__complete", "sh"});
  EXPECT_EQ(call.kind, Invocation::Kind::Completion);
  EXPECT_EQ(call.text, "show\tShow the mixers\n");
}

}  // namespace
}  // namespace ztk::test
