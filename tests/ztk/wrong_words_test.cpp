// SPDX-License-Identifier: MIT
//
// Hundreds of generated invalid command lines: each gives one line of error and
// status 2, and nothing is sent or remembered.
#include <random>
#include <utility>

#include "cli/program.h"
#include "cli_world.h"

namespace ztk::test {
namespace {

class WrongWords : public CliWorld {
 protected:
  // The fixed seed makes every run the same.
  std::mt19937 random_{20240607};

  std::size_t Below(std::size_t limit) { return random_() % limit; }
  template <typename T>
  const T &OneOf(const std::vector<T> &values) {
    return values[Below(values.size())];
  }

  // The generated word never has a meaning.
  std::string Garbage() {
    static const std::vector<std::string> odd{
        "''",
        "' '",
        "'*'",
        "'%s%n'",
        "'{}'",
        "'[1,2]'",
        "'a\tb'",
        "'\\'",
        "\"$(printf '\\377\\376')\"",
        "'x\ny'",
        "'@file'",
        "'=;'",
        "'-'",
        "'-x'",
        "'--nope'",
        "'--nope=1'",
        "'---'",
        "'--='",
        "\"$(head -c 4000 /dev/zero | tr '\\0' q)\""};
    if (Below(2) == 0) return OneOf(odd);
    std::string word = "q";
    for (std::size_t i = Below(12); i > 0; --i) {
      word += static_cast<char>('a' + Below(26));
    }
    return word;
  }

  std::string BadNumber() {
    static const std::vector<std::string> bad{
        "0",  "-1",   "6",  "99999999999999999999", "1.5", "0x1", "one",
        "+1", "' 1'", "1e0"};
    return OneOf(bad);
  }

  // A word with one letter too few, too many, wrong or swapped.
  std::string Mistyped(std::string word) {
    const std::size_t place = 1 + Below(word.size() - 2);
    switch (Below(4)) {
      case 0:
        return word.erase(place, 1);
      case 1:
        return word.insert(place, 1, 'x');
      case 2:
        word[place] = 'x';
        return word;
      default:
        std::swap(word[place], word[place + 1]);
        // Two that are the same.
        return word[place] == word[place + 1] ? word.insert(place, 1, 'x')
                                              : word;
    }
  }

  // A command line in which one word is misspelled.
  std::string NearlyRight() {
    const std::size_t kind = Below(3);
    if (kind == 0) {
      return Mistyped(OneOf<std::string>({"status", "input", "output", "boost",
                                          "apply", "watch", "versions"})) +
             " --json";
    }
    if (kind == 1) {
      return OneOf<std::string>({"input ", "output ", "boost "}) +
             Mistyped(OneOf<std::string>({"list", "apply"})) + " 1";
    }
    return OneOf<std::string>({"apply", "input list", "boost get"}) + " --" +
           Mistyped("product") + " 10";
  }

  std::string Line() {
    static const cli::Program program = cli::ThisProgram();
    const cli::Command &command = OneOf(program.commands);
    switch (Below(6)) {
      case 0:  // an unknown command
        return Garbage() + " " + command.path;
      case 1:  // an unknown option
        return command.path + " --zzz" + (Below(2) == 0 ? "" : "=1");
      case 2:  // an unknown channel
        return OneOf<std::string>({"input list ", "input get ", "input apply ",
                                   "output list ", "output default ",
                                   "warning --channel "}) +
               BadNumber();
      case 3:  // an unknown choice
        return OneOf<std::string>({"input set 1 ", "input set 5 ",
                                   "output set 3 ", "boost set ",
                                   "midi set "}) +
               Garbage();
      case 4:  // an unknown model
        return OneOf<std::string>({"apply", "boost list", "input get 1",
                                   "midi set 1", "output default"}) +
               " --product " +
               OneOf<std::string>({"7", "9", "11", "VRM", "''", "-5", "K3"});
      default:  // too much
        return OneOf<std::string>({"status", "versions", "watch", "apply",
                                   "input raw 1 0 5", "boost list",
                                   "midi apply", "input get 1"}) +
               " " + Garbage();
    }
  }
};

TEST_F(WrongWords, AreOneLineOfErrorAndNothingIsSent) {
  std::string script;
  std::vector<std::string> lines;
  std::vector<bool> nearlyRight;
  for (int i = 0; i < ZTK_WRONG_LINES; ++i) {
    nearlyRight.push_back(Below(4) == 0);
    lines.push_back((nearlyRight.back() ? NearlyRight() : Line()) +
                    (Below(3) == 0 ? " --json" : ""));
    script += "ztk " + lines.back() +
              " > $DIR/o 2> $DIR/e; echo $? $(wc -l < $DIR/e) "
              "$(head -c 5 $DIR/e) $(grep -c '; nearest: ' $DIR/e)\n";
  }
  const Result result = OneMixer(script);
  const std::vector<std::string> answers = SplitLines(result.out);
  ASSERT_EQ(answers.size(), lines.size()) << result.err;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    SCOPED_TRACE(lines[i]);
    EXPECT_THAT(answers[i], StartsWith("2 1 ztk: "));
    if (nearlyRight[i]) {
      EXPECT_EQ(answers[i], "2 1 ztk: 1");
    }
  }
  EXPECT_THAT(Requests(), IsEmpty());
  EXPECT_FALSE(HasSettings("VRM-D6"));
  EXPECT_FALSE(HasSettings("VRM-B5"));
  EXPECT_FALSE(HasSettings("VRM-K2"));
}

TEST_F(WrongWords, SayWhatIsAccepted) {
  const struct {
    const char *words;
    const char *expected;
  } rows[] = {
      {"inptu", "ztk: no command \"inptu\"; nearest: input; see ztk --help\n"},
      {"",
       "ztk: a command is missing; accepted: status, input, output, boost, "
       "midi, apply, autoapply, undo, reset, export, import, watch, warning, "
       "doctor, "
       "models, versions; see ztk --help\n"},
      {"input",
       "ztk: a command is missing after \"input\"; accepted: list, get, set, "
       "apply, raw; see ztk input --help\n"},
      {"output lst",
       "ztk: no command \"lst\" after \"output\"; nearest: list; accepted: "
       "list, get, set, "
       "default, apply; see ztk output --help\n"},
      {"input set 6 1",
       "ztk: USB input audio has no channel \"6\"; nearest: 5; accepted: 1 to "
       "5\n"},
      {"input set",
       "ztk: a CHANNEL is missing; accepted: 1 to 5; see ztk input set "
       "--help\n"},
      {"status now",
       "ztk: unexpected word \"now\" after \"status\"; accepted: --verbose; "
       "see "
       "ztk status --help\n"},
      {"status --all",
       "ztk: no option \"--all\" after \"status\"; accepted: --verbose, "
       "--json, --quiet, --help, --version; see ztk status --help\n"},
      {"apply --product VRM-Z1",
       "ztk: no model \"VRM-Z1\"; accepted, by number or "
       "name: 1 VRM-K2, 8 VRM-B5, 10 VRM-D6; see ztk models\n"},
      {"boost get --product VRM-Z1",
       "ztk: no model \"VRM-Z1\"; accepted, by number or name: 0 VRM-Q8X, 1 "
       "VRM-K2, 2 VRM-Q8S, 3 VRC-H7, 4 VRM-Q9, 5 VRM-L4, 6 VRM-E3, 8 VRM-B5, "
       "10 VRM-D6; see ztk models\n"},
      {"import",
       "ztk: FILE is missing after \"import\"; accepted: file that ztk export "
       "has written, or - for the standard input; see ztk import --help\n"},
      {"doctor --report",
       "ztk: --report needs exactly one value; accepted: FILE; see ztk doctor "
       "--help\n"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.words);
    const Result result = OneMixer(std::string("ztk ") + row.words);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, row.expected);
    EXPECT_THAT(result.out, IsEmpty());
  }
}

TEST_F(WrongWords, NameTheCommandThatDoesWhatIsMeant) {
  const struct {
    const char *words;
    const char *expected;
  } rows[] = {
      {"export club.json",
       "ztk: unexpected word \"club.json\" after \"export\"; run: ztk export > "
       "club.json\n"},
      {"forget", "ztk: no command \"forget\"; run: ztk reset\n"},
      {"forget input 2",
       "ztk: no command \"forget\"; run: ztk reset input 2\n"},
      {"apply input 2",
       "ztk: unexpected word \"input\" after \"apply\"; run: ztk input apply "
       "2\n"},
      {"input reset 2",
       "ztk: no command \"reset\" after \"input\"; run: ztk reset input 2\n"},
      {"input 2 post",
       "ztk: no command \"2\" after \"input\"; run: ztk input set 2 post\n"},
      {"boost 2",
       "ztk: no command \"2\" after \"boost\"; run: ztk boost set "
       "2\n"},
      {"redo",
       "ztk: no command \"redo\"; an undo cannot be taken back; set the value "
       "again, for example: ztk input set 2 mic\n"},
      // A word that a shell would not pass on is not repeated.
      {"export 'my club.json'",
       "ztk: unexpected word \"my club.json\" after \"export\"; see ztk export "
       "--help\n"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.words);
    const Result result = OneMixer(std::string("ztk ") + row.words);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.err, row.expected);
    EXPECT_THAT(Requests(), IsEmpty());
  }
  EXPECT_THAT(OneMixer("ztk undo --help").out,
              HasSubstr("An undo cannot be taken\nback: set the value again."));
}

TEST_F(WrongWords, TellTheNearestRightOne) {
  const struct {
    const char *words;
    const char *nearest;
  } rows[] = {
      {"inptu list", "input"},
      {"statsu", "status"},
      {"verisons --json", "versions"},
      {"input lits 2", "list"},
      {"boost sett 1", "set"},
      {"set 2 mic", "input set, output set, boost set, midi set"},
      {"raw 1 2 3", "input raw"},
      {"status --jsn", "--json"},
      {"status json", "--json"},
      {"apply --prodct VRM-K2", "--product"},
      {"warning --langauge de", "--language"},
      {"input set 2 mci", "MIC (6)"},
      {"input set 2 rec uot", "REC OUT (7)"},
      {"input set 2 fadr", "Cross Fader A (4)"},
      {"input set 2 8", "REC OUT (7)"},
      {"boost set 0", "-5 dB (1)"},
      {"boost set -11dB", "-10 dB (2)"},
      {"midi set 17", "CH 16 (16)"},
      {"output set 1 auxx", "AUX (3)"},
      {"output set 4 aux", "3"},
      {"apply --product VRM-D7", "VRM-D6"},
      {"boost get --product vrm-b6", "VRM-B5"},
      {"warning --language germna", "German"},
      {"warning --language portugese", "Portuguese"},
      {"warning --channel 7", "4"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.words);
    const Result result = OneMixer(std::string("ztk ") + row.words);
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.err,
                HasSubstr(std::string("; nearest: ") + row.nearest + ";"));
    EXPECT_EQ(SplitLines(result.err).size(), 1U);
    EXPECT_THAT(Requests(), IsEmpty());
  }
}

}  // namespace
}  // namespace ztk::test
