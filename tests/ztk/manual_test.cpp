// SPDX-License-Identifier: MIT
//
// Parser, help, manual page and completions are made from one table, and each
// of them contains all of it.
#include <filesystem>

#include "cli/program.h"
#include "cli_world.h"
#include "ztk/report.h"

namespace ztk::test {
namespace {

// A manual page without its markup.
std::string PlainPage(const std::string &name) {
  std::string text = ReadAll(std::string(ZTK_MANUAL_FOLDER) + "/" + name);
  const struct {
    const char *markup;
    const char *character;
  } rows[] = {{"\\fB", ""},   {"\\fI", ""},    {"\\fR", ""}, {"\\-", "-"},
              {"\\(aq", "'"}, {"\\(dq", "\""}, {"\\&", ""},  {"\\(ha", "^"},
              {"\\(ti", "~"}, {"\\(ga", "`"}};
  for (const auto &row : rows) {
    const std::string markup = row.markup;
    for (std::size_t at = text.find(markup); at != std::string::npos;
         at = text.find(markup, at)) {
      text.replace(at, markup.size(), row.character);
    }
  }
  return text;
}

// The part of a page about one command, or the group that it belongs to.
std::string SectionOf(const std::string &page, const std::string &path) {
  const std::size_t begin =
      page.find(".SS \"" + path.substr(0, path.find(' ')) + "\"\n");
  if (begin == std::string::npos) return "";
  return page.substr(begin, page.find("\n.S", begin + 1) - begin);
}

class Manual : public CliWorld {
 protected:
  // The words that completion offers, without their meanings.
  std::vector<std::string> Offered(const std::string &words) {
    std::vector<std::string> offered;
    const Result result = NoMixer("ztk __complete " + words);
    for (const std::string &line : SplitLines(result.out)) {
      offered.push_back(line.substr(0, line.find('\t')));
    }
    return offered;
  }
};

std::size_t Occurrences(const std::string &text, const std::string &part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos;
       at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST_F(Manual, BeginsWithExamplesAndTheWordsThatItUses) {
  const std::string page = PlainPage("ztk.1");
  std::size_t last = 0;
  for (const char *title :
       {"EXAMPLES", "TERMS", "OPTIONS", "COMMANDS", "EXIT STATUS"}) {
    const std::size_t at = page.find(std::string(".SH \"") + title);
    ASSERT_NE(at, std::string::npos) << title;
    EXPECT_GT(at, last) << title;
    last = at;
  }
  EXPECT_EQ(Occurrences(page, "Show what would be done, and do nothing;"), 1U);
  EXPECT_EQ(Occurrences(page, "Model, by name or number; "), 1U);
}

TEST_F(Manual, TellsEveryCommandAndOptionWithItsExample) {
  const std::string page = PlainPage("ztk.1");
  for (const cli::Command &command : cli::ThisProgram().commands) {
    SCOPED_TRACE(command.path);
    const std::string section = SectionOf(page, command.path);
    EXPECT_THAT(section, HasSubstr("ztk " + command.path));
    EXPECT_THAT(section, HasSubstr(command.summary));
    for (const std::string &line : SplitLines(command.note)) {
      // A group names its model in its first line.
      if (line.find(" is a setting of the ") != std::string::npos) continue;
      EXPECT_THAT(section, HasSubstr(line));
    }
    EXPECT_THAT(section, HasSubstr(command.examples.front()));
    // An option of several commands is described once, before them.
    for (const cli::Option &option : command.options) {
      EXPECT_THAT(section, HasSubstr(option.names));
      EXPECT_THAT(page, HasSubstr(option.description));
    }
  }
}

TEST_F(Manual, NamesEveryFileAndWhereItIs) {
  OneMixer("ztk input set 1 1; ztk output set 1 1; ztk midi set 1");
  const std::string page = PlainPage("ztk.1");
  const std::string home = home_.path().string();
  for (const std::string folder : {"/.config/", "/.local/state/"}) {
    EXPECT_THAT(page, HasSubstr("~" + folder.substr(0, folder.size() - 1)));
    std::size_t files = 0;
    for (const auto &entry :
         std::filesystem::recursive_directory_iterator(home + folder)) {
      if (!entry.is_regular_file()) continue;
      ++files;
      const std::string name =
          entry.path().string().substr(home.size() + folder.size());
      EXPECT_THAT(page, HasSubstr("\n.TP\n" + name + "\n"));
    }
    EXPECT_EQ(files, 3U);
  }
  EXPECT_THAT(page, HasSubstr("\n.TP\nXDG_STATE_HOME\n"));
}

TEST_F(Manual, ShowsThatAChoiceMayBeLeftOut) {
  EXPECT_THAT(PlainPage("ztk.1"), HasSubstr("] [CHANNEL] [CHOICE...]\n"));
  EXPECT_THAT(NoMixer("ztk input set --help").out,
              HasSubstr("Usage: ztk input set [OPTIONS] [CHANNEL] [CHOICE"));
}

TEST_F(Manual, TellsEveryExitStatusAsTheHelpDoes) {
  const std::string page = PlainPage("ztk.1");
  const std::string help = NoMixer("ztk --help").out;
  for (const program::ExitMeaning &meaning : program::ExitMeanings()) {
    const std::string number = std::to_string(static_cast<int>(meaning.exit));
    const std::string text = meaning.text;
    EXPECT_THAT(page, HasSubstr("\n.TP\n" + number + "\n" + text));
    EXPECT_THAT(help, HasSubstr("  " + number));
    EXPECT_THAT(help, HasSubstr(text.substr(0, text.find('\n'))));
  }
}

TEST_F(Manual, CompletesEveryCommandAndOption) {
  for (const cli::Command &command : cli::ThisProgram().commands) {
    SCOPED_TRACE(command.path);
    const std::size_t space = command.path.find(' ');
    const std::string before =
        space == std::string::npos ? "" : command.path.substr(0, space + 1);
    EXPECT_THAT(Offered(before + "''"),
                testing::Contains(command.path.substr(before.size())));
    std::vector<std::string> options;
    for (const cli::Option &option : command.options) {
      if (!cli::IsPositional(option)) options.push_back(option.names);
    }
    for (const char *name : {"--json", "--quiet", "--help", "--version"}) {
      options.emplace_back(name);
    }
    EXPECT_EQ(Offered(command.path + " --"), options);
  }
}

TEST_F(Manual, OffersNothingThatIsRefused) {
  // Each offered channel, choice, model and language is accepted.
  const struct {
    const char *words;
    std::size_t count;
    const char *then;
  } rows[] = {{"input set", 5, "1"},          {"output get", 3, ""},
              {"input set 1", 7, ""},         {"input set 5", 8, ""},
              {"boost set", 8, ""},           {"midi set", 16, ""},
              {"output set 3", 3, ""},        {"boost list --product", 9, ""},
              {"warning --language", 12, ""}, {"warning --channel", 4, ""}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.words);
    const std::vector<std::string> offered =
        Offered(std::string(row.words) + " ''");
    EXPECT_EQ(offered.size(), row.count);
    std::string script;
    for (const std::string &word : offered) {
      script += std::string("ztk ") + row.words + " '" + word + "' " +
                row.then + " >/dev/null 2>&1; echo $?;";
    }
    // Some models are not served, and a warning text needs its bundle.
    for (const std::string &status : SplitLines(OneMixer(script).out)) {
      EXPECT_NE(status, "2");
    }
  }
}

TEST_F(Manual, CompletesWithoutAskingAMixer) {
  OneMixer(
      "for words in \"''\" \"input set 2 ''\" \"status --\"; do "
      "eval ztk __complete $words; done");
  EXPECT_THAT(Requests(), IsEmpty());
  EXPECT_FALSE(HasSettings("VRM-D6"));
}

}  // namespace
}  // namespace ztk::test
