// SPDX-License-Identifier: MIT
#include "api/api_test.h"

namespace ztk::test {
namespace {

constexpr char kNewBundle[] = "/Library/Frameworks/VRM-D6Setup.framework";
constexpr char kOldBundle[] =
    "/System/Library/Frameworks/VRM-D6Setup.framework";

constexpr std::uint32_t kJapanese = 1;
constexpr std::uint32_t kUsersOwn = 99;

constexpr char kReadPort[] = "c0 00 0000 8006 0002 -> 00 00";

// The folder of each language number.
const char *const kFolders[] = {"English", "Japanese", "French",  "German",
                                "Italian", "Dutch",    "Spanish", "ru",
                                "pt",      "zh_CN",    "zh_TW",   "ko"};

class GetWarningTextForSetUSBAudioInput : public ApiTest {
 protected:
  GetWarningTextForSetUSBAudioInput() { Install(); }

  // Makes a newer system with both bundles. The newer bundle has every
  // language: its text of "WARNING2" in Japanese is "Japanese 2".
  static void Install() {
    CurrentWorld().files[kSystemFile] = {{"ProductVersion", "10.13.6"}};
    CurrentWorld().bundles[kNewBundle] = BundleAt("/new");
    CurrentWorld().bundles[kOldBundle] = BundleAt("/old");
    for (const std::string folder : kFolders) {
      CurrentWorld().files["/new/" + folder + ".lproj/Localizable.strings"] = {
          {"WARNING", folder + " 0"},
          {"WARNING1", folder + " 1"},
          {"WARNING2", folder + " 2"},
          {"WARNING3", folder + " 3"}};
    }
  }

  static std::string Ask(std::uint32_t language, std::uint32_t channel = 0) {
    ZTKTextRef text = kUntouchedText;
    const ZTKResult result = ZTK_GetWarningTextForSetUSBAudioInput(
        10, channel, 101, language, &text);
    return std::to_string(result) + " " + Plain(text);
  }

  // Returns the files, bundles and texts that were read since the last call of
  // this function.
  static Steps Lookups() {
    Steps lookups;
    for (const std::string &call : TakeCalls()) {
      for (const char *verb : {"read file ", "bundle at ", "localized "}) {
        if (call.rfind(verb, 0) == 0) lookups.push_back(call);
      }
    }
    return lookups;
  }

  static Device Port(std::vector<std::uint8_t> bytes, fake::Code result = 0) {
    return MixerAnswering(0x8006, {.result = result, .bytes = bytes});
  }

 private:
  static fake::Bundle BundleAt(const std::string &path) {
    return {.resourcePath = path,
            .preferredTexts = {{"Localizable",
                                {{"WARNING1", path + " own 1"},
                                 {"WARNING2", path + " own 2"},
                                 {"WARNING3", path + " own 3"}}}}};
  }
};

TEST_F(GetWarningTextForSetUSBAudioInput, ReadsTheFolderOfEachLanguage) {
  CurrentWorld().bus = {Mixer()};
  for (std::uint32_t language = 0; language < 12; ++language) {
    const std::string folder = kFolders[language];
    SCOPED_TRACE(folder);
    EXPECT_EQ(Ask(language), "100 " + folder + " 2");
    EXPECT_THAT(Lookups(), ElementsAre(std::string("read file ") + kSystemFile,
                                       std::string("bundle at ") + kNewBundle,
                                       "read file /new/" + folder +
                                           ".lproj/Localizable.strings"));
  }
}

TEST_F(GetWarningTextForSetUSBAudioInput, UsesTheUsersLanguageFor99) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(Ask(kUsersOwn), "100 /new own 2");
  EXPECT_THAT(Lookups(), ElementsAre(std::string("read file ") + kSystemFile,
                                     std::string("bundle at ") + kNewBundle,
                                     "localized WARNING2 of Localizable"));
  CurrentWorld().bus = {Port({1, 0})};
  EXPECT_EQ(Ask(kUsersOwn), "100 /new own 3");
  CurrentWorld().bus = {};
  EXPECT_EQ(Ask(kUsersOwn), "100 /new own 1");
}

TEST_F(GetWarningTextForSetUSBAudioInput,
       UsesTheUsersLanguageForAnyLanguageNumberWithoutAMixer) {
  for (std::uint32_t language = 0; language < 12; ++language) {
    SCOPED_TRACE(language);
    EXPECT_EQ(Ask(language), "100 /new own 1");
    EXPECT_THAT(Lookups(), ElementsAre(std::string("read file ") + kSystemFile,
                                       std::string("bundle at ") + kNewBundle,
                                       "localized WARNING1 of Localizable"));
  }
}

TEST_F(GetWarningTextForSetUSBAudioInput,
       RefusesAnUnknownLanguageOnlyAfterTheRequestToTheMixer) {
  for (const std::uint32_t language :
       {12u, 13u, 98u, 100u, 0x80000000u, 0xFFFFFFFFu}) {
    SCOPED_TRACE(language);
    StartAfresh({Mixer()});
    Install();
    EXPECT_EQ(Ask(language), "102 untouched");
    EXPECT_THAT(
        TakeSteps(),
        ElementsAre("count", "open 1", "mixer 1: c0 00 0000 8006 0002 -> 00 00",
                    "close 1"));
    EXPECT_EQ(CurrentWorld().held, OneCount());
    CurrentWorld().bus = {};
    EXPECT_EQ(Ask(language), "102 untouched");
    EXPECT_THAT(TakeSteps(), ElementsAre("count"));
  }
}

TEST_F(GetWarningTextForSetUSBAudioInput,
       RefusesTheLastChannelAlthoughItCanBeSet) {
  CurrentWorld().bus = {Mixer()};
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    EXPECT_EQ(Ask(0, channel), "100 English 2") << channel;
  }
  TakeCalls();
  for (const std::uint32_t channel : {4u, 5u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(Ask(0, channel), "102 untouched") << channel;
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(GetWarningTextForSetUSBAudioInput, RefusesEveryCodeExceptTheWarning) {
  CurrentWorld().bus = {Mixer()};
  for (const std::uint32_t code :
       {0u, 1u, 99u, 100u, 102u, 103u, 104u, 0x80000065u, 0xFFFFFFFFu}) {
    ZTKTextRef text = kUntouchedText;
    EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(10, 0, code, 0, &text),
              102u);
    EXPECT_EQ(Plain(text), "untouched");
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

// Language 12 is refused too, but only after a request to the mixer.
TEST_F(GetWarningTextForSetUSBAudioInput, ChecksTheOtherArgumentsFirst) {
  CurrentWorld().bus = {Mixer()};
  ZTKTextRef text = kUntouchedText;
  EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(8, 0, 101, 12, &text), 102u);
  EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(10, 4, 101, 12, &text), 102u);
  EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(10, 0, 100, 12, &text), 102u);
  EXPECT_EQ(Plain(text), "untouched");
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(GetWarningTextForSetUSBAudioInput, ThePortStateSelectsTheSentence) {
  const struct {
    const char *name;
    Device mixer;
    const char *expected;
  } rows[] = {
      {"01 00", Port({1, 0}), "100 Japanese 3"},
      {"01 01", Port({1, 1}), "100 Japanese 2"},
      {"00 01", Port({0, 1}), "100 Japanese 2"},
      {"00 00", Port({0, 0}), "100 Japanese 2"},
      {"02 00", Port({2, 0}), "100 Japanese 2"},
      {"01 alone", Port({1}), "100 Japanese 3"},
      {"longer than asked for", Port({1, 0, 9, 9}), "100 Japanese 3"},
      {"no byte", Port({}), "100 Japanese 2"},
      {"refused", Port({}, platform::usb::kPipeStalled), "100 Japanese 2"},
      {"01 00 and a failure", Port({1, 0}, platform::usb::kTimeout),
       "100 Japanese 3"},
      {"does not open", UnreachableMixer(), "100 Japanese 2"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    CurrentWorld().bus = {row.mixer};
    EXPECT_EQ(Ask(kJapanese), row.expected);
  }
}

TEST_F(GetWarningTextForSetUSBAudioInput, AsksTheFirstMixerOnly) {
  CurrentWorld().bus = {Mixer(), Port({1, 0})};
  EXPECT_EQ(Ask(0), "100 English 2");
  EXPECT_THAT(TakeSteps(),
              ElementsAreArray(Join({{"count"}, Visit(1, kReadPort)})));
  CurrentWorld().bus = {UnreachableMixer(), Port({1, 0})};
  EXPECT_EQ(Ask(0), "100 English 2");
  EXPECT_THAT(TakeSteps(), ElementsAre("count", "cannot open 1"));
}

TEST_F(GetWarningTextForSetUSBAudioInput,
       AMixerThatCannotBeOpenedCountsAsAttached) {
  CurrentWorld().bus = {UnreachableMixer()};
  EXPECT_EQ(Ask(kJapanese), "100 Japanese 2");
  EXPECT_EQ(Ask(kUsersOwn), "100 /new own 2");
}

TEST_F(GetWarningTextForSetUSBAudioInput, TheSystemVersionSelectsTheBundle) {
  const struct {
    const char *version;
    const char *expected;
  } rows[] = {{"10.11.6", "100 /new own 1"}, {"10.15.7", "100 /new own 1"},
              {"10.10.5", "100 /old own 1"}, {"10.10", "100 /old own 1"},
              {"10.9", "100 /old own 1"},    {"11.2", "100 /old own 1"},
              {"11", "100 /old own 1"},      {"", "100 /old own 1"},
              {"10.", "100 /old own 1"}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.version);
    CurrentWorld().files[kSystemFile] = {{"ProductVersion", row.version}};
    EXPECT_EQ(Ask(0), row.expected);
  }
  CurrentWorld().files[kSystemFile] = {{"ProductVersion", 11}};
  EXPECT_EQ(Ask(0), "100 /old own 1");
  CurrentWorld().files.erase(kSystemFile);
  EXPECT_EQ(Ask(0), "100 /old own 1");
}

TEST_F(GetWarningTextForSetUSBAudioInput, ReadsTheLanguageFromTheOlderBundle) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[kSystemFile] = {{"ProductVersion", "10.10"}};
  CurrentWorld().files["/old/ko.lproj/Localizable.strings"] = {
      {"WARNING2", "yes"}};
  EXPECT_EQ(Ask(11), "100 yes");
  EXPECT_THAT(Lookups(),
              ElementsAre(std::string("read file ") + kSystemFile,
                          std::string("bundle at ") + kOldBundle,
                          "read file /old/ko.lproj/Localizable.strings"));
}

TEST_F(GetWarningTextForSetUSBAudioInput, IsNullWithoutTheBundle) {
  CurrentWorld().bundles.erase(kNewBundle);
  EXPECT_EQ(Ask(kJapanese), "100 (null)");
  EXPECT_EQ(Ask(kUsersOwn), "100 (null)");
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(Ask(kJapanese), "100 (null)");
  EXPECT_EQ(Ask(kUsersOwn), "100 (null)");
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 4, .numbers = 8}));
}

TEST_F(GetWarningTextForSetUSBAudioInput, IsNullWithoutTheLanguage) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files.erase("/new/Japanese.lproj/Localizable.strings");
  EXPECT_EQ(Ask(kJapanese), "100 (null)");
  EXPECT_EQ(Ask(0), "100 English 2");
}

TEST_F(GetWarningTextForSetUSBAudioInput,
       IsNullIfTheLanguageDoesNotContainTheSentence) {
  const std::string file = "/new/Japanese.lproj/Localizable.strings";
  CurrentWorld().bus = {Port({1, 0})};
  CurrentWorld().files[file] = {{"WARNING2", "two"}};
  EXPECT_EQ(Ask(kJapanese), "100 (null)");
  CurrentWorld().files[file] = {{"WARNING2", "two"}, {"WARNING3", 3}};
  EXPECT_EQ(Ask(kJapanese), "100 (null)");
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().files[file] = {{"WARNING3", "three"}};
  EXPECT_EQ(Ask(kJapanese), "100 (null)");
}

TEST_F(GetWarningTextForSetUSBAudioInput, IsTheKeyIfTheBundleDoesNotContainIt) {
  CurrentWorld().bundles[kNewBundle].preferredTexts.clear();
  EXPECT_EQ(Ask(kJapanese), "100 WARNING1");
  CurrentWorld().bus = {Port({1, 0})};
  EXPECT_EQ(Ask(kUsersOwn), "100 WARNING3");
}

TEST_F(GetWarningTextForSetUSBAudioInput,
       StoresAndPostsNothingAndReleasesAllObjects) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(Ask(kJapanese), "100 Japanese 2");
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1",
                          "mixer 1: c0 00 0000 8006 0002 -> 00 00", "close 1"));
  EXPECT_EQ(CurrentWorld().held, OneCount());
}

}  // namespace
}  // namespace ztk::test
