// SPDX-License-Identifier: MIT
#include <filesystem>
#include <set>

#include "cli_world.h"
#include "ztk/model/settings.h"

namespace ztk::test {
namespace {

class Export : public CliWorld {};
class Import : public CliWorld {
 protected:
  // The lines on the error stream for a file with this content.
  std::vector<std::string> Errors(const std::string &text) {
    WriteAll(home_.path() / "file", text);
    const Result result = OneMixer("ztk import $DIR/file");
    EXPECT_EQ(result.status, 2) << text;
    EXPECT_THAT(result.out, IsEmpty());
    EXPECT_THAT(Requests(), IsEmpty()) << text;
    EXPECT_FALSE(HasSettings("VRM-D6")) << text;
    EXPECT_THAT(LastLine(result.err), HasSubstr("nothing was changed: "));
    std::vector<std::string> lines = SplitLines(result.err);
    if (!lines.empty()) lines.pop_back();
    const std::string start = "ztk: " + (home_.path() / "file").string() + ": ";
    for (std::string &line : lines) {
      EXPECT_THAT(line, StartsWith(start));
      line.erase(0, start.size());
    }
    return lines;
  }
};

TEST_F(Export, WritesWordsByModelSettingAndChannel) {
  Remember("VRM-D6", {{"Output1", 2}, {"Output4", 7}, {"MaxLevel", 1}});
  Remember("VRM-B5", {{"Input0", 2}});
  Remember("VRM-K2", {{"MidiChannel", 15}});
  const Result result = OneMixer("ztk export");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, R"({
  "version": 1,
  "settings": {
    "VRM-D6": {
      "input": {
        "2": "Post CH2 Fader",
        "5": "MIC"
      },
      "boost": "-10 dB"
    },
    "VRM-B5": {
      "output": {
        "1": "AUX"
      }
    },
    "VRM-K2": {
      "midi": "CH 16"
    }
  }
}
)");
  EXPECT_THAT(Requests(), IsEmpty());
}

TEST_F(Export, LeavesOutWhatHasNoWordsAndSaysSo) {
  Remember("VRM-D6", {{"Output0", 7}, {"MaxLevel", 9}});
  const Result result = OneMixer("ztk export --json");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(OneObject(result.out).value("settings", Json()), Json::object());
  EXPECT_THAT(Line(result.err, 0), HasSubstr("left out"));
  EXPECT_THAT(Line(result.err, 1),
              HasSubstr("Boost level: 9, which is not a choice"));
}

// Every choice of every setting is exported and imported again.
TEST_F(Import, BringsBackWhatWasExported) {
  std::set<std::string> models;
  for (const model::Setting *setting : model::AllSettings()) {
    models.insert(model::ModelName(*setting));
  }
  for (int round = 0; round < 16; ++round) {
    SCOPED_TRACE(round);
    Remember("VRM-D6", {{"Output0", round % 7},
                        {"Output1", (round + 1) % 7},
                        {"Output2", (round + 2) % 7},
                        {"Output3", (round + 3) % 7},
                        {"Output4", round % 8},
                        {"MaxLevel", round % 4}});
    Remember("VRM-B5", {{"Input0", round % 3},
                        {"Input1", (round + 1) % 3},
                        {"Input2", (round + 2) % 3}});
    Remember("VRM-K2", {{"MidiChannel", round}});
    const std::string way = round % 2 == 0 ? "--json" : "";
    const Result result =
        OneMixer("cd $HOME/.config/tarvix; ztk export " + way +
                 " > $DIR/first || exit; mv Preferences before;"
                 "ztk import $DIR/first > /dev/null 2> $DIR/noise || exit;"
                 "ztk export " +
                 way +
                 " > $DIR/second; cmp $DIR/first $DIR/second ||"
                 " exit; ztk status > $DIR/now; rm -r Preferences;"
                 "mv before Preferences; ztk status > $DIR/then;"
                 "cmp $DIR/now $DIR/then");
    EXPECT_EQ(result.status, 0) << result.out << result.err << File("noise");
    EXPECT_EQ(Writes().size(), 10U);
  }
  EXPECT_EQ(models, std::set<std::string>({"VRM-B5", "VRM-D6", "VRM-K2"}));
}

TEST_F(Import, SendsRemembersAndAnnouncesLikeASetter) {
  WriteAll(home_.path() / "file",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-5 dB"},
               "VRM-K2":{"midi":"ch 3"}}})");
  const Result result = OneMixer("ztk import - < $DIR/file; ztk undo");
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(Line(result.out, 0),
            "Boost level: -5 dB (1), sent to 1 mixer, remembered");
  EXPECT_EQ(Line(result.out, 1),
            "MIDI channel: CH 3 (3), sent to 1 mixer, remembered");
  // Undone as a single command.
  EXPECT_THAT(Line(result.out, 2), StartsWith("MIDI channel: CH 3 (3) undone"));
  EXPECT_THAT(Line(result.out, 4), StartsWith("Boost level: -5 dB (1) undone"));
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8003 0000",
                                    "mixer 1: 40 03 0200 8004 0000",
                                    "mixer 1: 40 03 0000 8004 0000",
                                    "mixer 1: 40 03 0000 8003 0000"));
}

TEST_F(Import, ChecksAllOfItBeforeItChangesAnything) {
  EXPECT_THAT(
      Errors(R"({"version":2,"more":1,"settings":{
          "VRM-D6":{"input":{"6":"MIC","1":"nothing","2":3,"3":"Cross"},
                    "boost":{"1":"-5 dB"},"output":{"1":"AUX"}},
          "VRM-Z9":{},"VRM-B5":[],"VRM-K2":{"midi":"CH 16"}}})"),
      ElementsAre(
          "version: it is not supported; accepted: 1",
          "no entry \"more\"; accepted: version, settings",
          "settings.VRM-D6.input: no channel \"6\"; accepted: 1 to 5",
          StartsWith("settings.VRM-D6.input.1: no choice \"nothing\"; "
                     "accepted: CH1 Control Tone PHONO (1), "),
          StartsWith("settings.VRM-D6.input.2: the text of a choice is needed"),
          StartsWith("settings.VRM-D6.input.3: no choice \"Cross\""),
          StartsWith("settings.VRM-D6.boost: the text of a choice is needed"),
          "settings.VRM-D6: no setting \"output\"; accepted: input, boost",
          "settings: no model \"VRM-Z9\"; accepted: VRM-D6, VRM-B5, VRM-K2",
          "settings.VRM-B5: it is not a JSON object"));
}

TEST_F(Import, RefusesWhatIsNoExport) {
  EXPECT_THAT(Errors(""), ElementsAre(StartsWith("not JSON (byte ")));
  EXPECT_THAT(Errors("{\"version\":1,"), ElementsAre("not JSON (byte 14)"));
  EXPECT_THAT(Errors("[]"),
              ElementsAre(StartsWith("it contains no \"settings\"")));
  EXPECT_THAT(Errors("{\"settings\":{}}"),
              ElementsAre("version: it is missing"));
  EXPECT_THAT(Errors(R"({"version":1,"settings":{"VRM-D6":{
                         "boost":"-5 dB","boost":"-10 dB"}}})"),
              ElementsAre("\"boost\" is there twice"));
}

TEST_F(Import, TellsErrorsInJsonToo) {
  WriteAll(home_.path() / "file", "{\"version\":1,\"settings\":3}");
  const Result result = OneMixer("ztk import $DIR/file --json");
  EXPECT_EQ(result.status, 2);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json.value("errors", Json()),
            Json({"settings: it is not a JSON object"}));
  EXPECT_EQ(json.value("error", Json::object()).value("code", ""), "usage");
}

TEST_F(Import, NeedsAFileThatCanBeRead) {
  const Result result = OneMixer(
      "ztk import; echo $?; ztk import $DIR/none; echo $?;"
      "ztk import $DIR; echo $?;"
      "head -c 2000000 /dev/zero | ztk import -; echo $?");
  EXPECT_EQ(result.out, "2\n2\n2\n2\n");
  EXPECT_EQ(SplitLines(result.err).size(), 4U) << result.err;
  EXPECT_THAT(Line(result.err, 1), HasSubstr("No such file or directory"));
  EXPECT_THAT(Line(result.err, 3), HasSubstr("larger than any file"));
}

TEST_F(Import, ShowsInADryRunWhatItWouldDo) {
  WriteAll(home_.path() / "file",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-5 dB"}}})");
  const Result result = OneMixer("ztk import $DIR/file --dry-run");
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.out, HasSubstr("Boost level: nothing -> -5 dB (1)\n"));
  EXPECT_THAT(Requests(), IsEmpty());
  EXPECT_FALSE(HasSettings("VRM-D6"));
}

TEST_F(Export, OfNothingCanBeImported) {
  const Result result =
      OneMixer("ztk export > $DIR/file; ztk import $DIR/file; echo $?");
  EXPECT_EQ(result.out, "The file contains no settings: nothing to set.\n0\n");
  EXPECT_THAT(result.err, StartsWith("ztk: warning: nothing is remembered"));
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Import, NamesWhatItKeeps) {
  Remember("VRM-D6", {{"Output1", 5}, {"MaxLevel", 1}});
  WriteAll(home_.path() / "file",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-5 dB"}}})");
  EXPECT_EQ(
      OneMixer("ztk import $DIR/file").out,
      "Boost level: -5 dB (1), sent to 1 mixer, remembered\n"
      "Kept, because the file does not contain it: USB input 2: MIC (6); ztk "
      "import --only forgets it\n");
  const Json json = OneObject(OneMixer("ztk import $DIR/file --json").out);
  EXPECT_EQ(json["kept"], Json::parse(R"([{"setting":"input","model":"VRM-D6",
      "channel":2,"number":6,"text":"MIC","value":5}])"));
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")), HasSubstr("Output1"));
}

TEST_F(Import, ForgetsTheRestWhenToldSo) {
  Remember("VRM-D6", {{"Output1", 5}, {"MaxLevel", 1}});
  WriteAll(home_.path() / "file",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-5 dB"}}})");
  EXPECT_EQ(
      OneMixer("ztk import --only $DIR/file").out,
      "Boost level: -5 dB (1), sent to 1 mixer, remembered\n"
      "USB input 2: forgotten, default CH2 Control Tone PHONO (1), sent to 1 "
      "mixer\n");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8003 0000",
                                    "mixer 1: 40 03 0203 8002 0000"));
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")), Not(HasSubstr("Output1")));
  OneMixer("ztk undo");
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")),
              HasSubstr("<key>Output1</key>\n\t<integer>5<"));
}

TEST_F(Import, NamesTheStandardInput) {
  EXPECT_EQ(NoMixer("printf x | ztk import -").err,
            "ztk: standard input: not JSON (byte 1)\n"
            "ztk: nothing was changed: 1 error in the standard input\n");
}

TEST_F(Export, FailsForAFileThatCannotBeRead) {
  std::filesystem::create_directories(home_.SettingsFile("VRM-D6"));
  const Result result = NoMixer("ztk export");
  EXPECT_EQ(result.status, 5);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, StartsWith("ztk: nothing is exported: cannot read " +
                                     home_.SettingsFile("VRM-D6").string()));
}

TEST_F(Import, ShowsTheFirstErrorsAndTheirNumber) {
  std::string text = R"({"version":1,"settings":{"VRM-D6":{"input":{)";
  for (int i = 0; i < 2000; ++i) {
    text += (i == 0 ? "" : ",") + ('"' + std::to_string(100 + i) + R"(":"x")");
  }
  WriteAll(home_.path() / "many.json", text + "}}}}");
  const Result result = NoMixer("ztk import $DIR/many.json --json");
  EXPECT_EQ(result.status, 2);
  const Json json = OneObject(result.out);
  EXPECT_EQ(json.value("errorCount", 0), 2000);
  EXPECT_EQ(json.value("errors", Json()).size(), 20U);
  EXPECT_THAT(LastLine(result.err),
              HasSubstr("2000 errors (the first 20 are shown) in "));
}

TEST_F(Import, RefusesANumberThatIsTooLarge) {
  WriteAll(home_.path() / "huge.json", R"({"version":1e999,"settings":{}})");
  const Result result = NoMixer("ztk import $DIR/huge.json");
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(Line(result.err, 0), HasSubstr("a number in it is too large"));
}

// A repeated import finds nothing to forget, unless the default is remembered.
// Another import from standard input would wait for the keyboard.
TEST_F(Import, NamesOtherCommandsForStandardInput) {
  Remember("VRM-D6", {{"Output2", 5}});
  constexpr char kClub[] =
      R"(echo '{"version":1,"settings":{"VRM-D6":{"boost":"-5 dB"}}}' | )";
  EXPECT_THAT(LastLine(NoMixer(std::string(kClub) + "ztk import -").err),
              EndsWith("; when one is attached, run: ztk apply"));
  EXPECT_THAT(LastLine(NoMixer(std::string(kClub) + "ztk import --only -").err),
              EndsWith("; when one is attached, run (set also remembers the "
                       "default): ztk input set 3 1; ztk apply"));
}

TEST_F(Import, NamesTheCommandsThatSendTheDefaultsOfWhatItForgets) {
  Remember("VRM-D6", {{"Output3", 5}});
  WriteAll(home_.path() / "c.json",
           R"({"version":1,"settings":{"VRM-D6":{"input":{"2":"MIC"}}}})");
  const Result result =
      Inside({"-n", "1", "--fault", "stall@w8002"},
             "cd $DIR; ztk import --only c.json; ztk-virtual-mixer fault none\n"
             "> $DIR/seen; ztk input set 4 1; ztk import --only c.json");
  EXPECT_EQ(Line(result.err, 0),
            "ztk: the change is saved, but the mixer "
            "refused it; switch it off and on again, then run: ztk "
            "input set 4 1; ztk import --only c.json");
  EXPECT_EQ(
      LastLine(result.out),
      "USB input 4: forgotten, default CH4 Control Tone PHONO (1), sent to "
      "1 mixer");
}

}  // namespace
}  // namespace ztk::test
