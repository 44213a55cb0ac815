// SPDX-License-Identifier: MIT
#include "cli/suggest.h"

#include <gtest/gtest.h>

namespace ztk::test {
namespace {

using cli::Nearest;
using cli::NearestAndAccepted;

const std::vector<std::string> kWords{"status", "input",   "output",  "boost",
                                      "midi",   "warning", "versions"};

TEST(Nearest, IsTheWordThatDiffersLeast) {
  const struct {
    const char *name;
    const char *word;
    const char *expected;
  } rows[] = {{"swapped", "inptu", "input"},
              {"missing", "bost", "boost"},
              {"too many", "statuss", "status"},
              {"wrong", "mibi", "midi"},
              {"a part of it", "version", "versions"},
              {"capitals", "INPTU", "input"},
              {"dashes", "--out-put", "output"},
              {"the first of two", "put", "input"},
              {"the shorter of two", "nput", "input"},
              {"nothing in common", "xyz", ""},
              {"one letter", "x", ""},
              {"no word", "", ""},
              {"no letters", " -", ""},
              {"not UTF-8", "\xFF\xFE", ""}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Nearest(row.word, kWords), row.expected);
  }
  EXPECT_EQ(Nearest("input", {}), "");
}

TEST(Nearest, TakesNoTimeForAWordWithoutEnd) {
  EXPECT_EQ(Nearest(std::string(4000000, 'q'), kWords), "");
}

TEST(Nearest, IsNoGuess) {
  const struct {
    const char *word;
    std::vector<std::string> accepted;
    const char *expected;
  } rows[] = {{"help", {"export", "import", "boost"}, ""},
              {"foo", {"boost"}, ""},
              {"klingon", {"Italian", "English"}, ""},
              {"nonsense", {"VRM-Q8S", "VRM-D6"}, ""},
              {"Deutsch", {"Dutch", "German"}, ""},
              {"VRM-Z1", {"VRM-K2"}, ""},
              {"now", {"--json", "--help"}, ""},
              {"all", {"--json", "--help"}, ""},
              {"dx", {"Dutch"}, ""},
              {"mci", {"MIC"}, "MIC"},
              {"jsn", {"--json", "--help"}, "--json"},
              {"js", {"--json", "--help"}, "--json"},
              {"K2", {"VRM-Q8X", "VRM-K2"}, "VRM-K2"},
              {"VRM-D7", {"VRM-K2", "VRM-D6"}, "VRM-D6"},
              {"fadr", {"MIC", "Cross Fader A"}, "Cross Fader A"},
              {"Portugese", {"Portuguese"}, "Portuguese"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.word);
    EXPECT_EQ(Nearest(row.word, row.accepted), row.expected);
  }
}

TEST(Nearest, PrefersWhatContainsMostOfTheWords) {
  const struct {
    const char *words;
    const char *expected;
  } rows[] = {
      {"post fader foo", "Post CH2 Fader"}, {"post fadr", "Post CH2 Fader"},
      {"post ch3 fader", "Post CH2 Fader"}, {"cross fadr A", "Cross Fader A"},
      {"fader", "Cross Fader A"},           {"fo po fa", ""}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.words);
    EXPECT_EQ(Nearest(row.words,
                      {"Cross Fader A", "Post CH2 Fader", "Cross Fader B"}),
              row.expected);
  }
}

TEST(NearestAndAccepted, SaysWhatCanStandThere) {
  EXPECT_EQ(NearestAndAccepted("bost", {"input", "boost"}),
            "; nearest: boost; accepted: input, boost");
  EXPECT_EQ(NearestAndAccepted("zzz", {"input", "boost"}),
            "; accepted: input, boost");
  EXPECT_EQ(NearestAndAccepted("bost", {}), "");
}

TEST(NearestAndAccepted, ListsNoMoreThanEightWordsBesideTheNearest) {
  std::vector<std::string> accepted{"input", "boost", "c", "d", "e", "f", "g"};
  accepted.emplace_back("h");
  EXPECT_EQ(NearestAndAccepted("bost", accepted),
            "; nearest: boost; accepted: input, boost, c, d, e, f, g, h");
  accepted.emplace_back("i");
  EXPECT_EQ(NearestAndAccepted("bost", accepted), "; nearest: boost");
  EXPECT_EQ(NearestAndAccepted("zzz", accepted),
            "; accepted: input, boost, c, d, e, f, g, h, i");
}

TEST(NearestAndAccepted, KnowsTheNumberThatIsNearest) {
  const struct {
    const char *word;
    const char *expected;
  } rows[] = {{"0", "; nearest: 1; accepted: 1 to 5"},
              {"6", "; nearest: 5; accepted: 1 to 5"},
              {"99999999999999999999", "; nearest: 5; accepted: 1 to 5"},
              {"-1", "; accepted: 1 to 5"},
              {"one", "; accepted: 1 to 5"},
              {"", "; accepted: 1 to 5"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.word);
    EXPECT_EQ(NearestAndAccepted(row.word, 1, 5), row.expected);
  }
}

}  // namespace
}  // namespace ztk::test
