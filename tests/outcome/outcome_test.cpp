// SPDX-License-Identifier: MIT
//
// Tests the record of the last call on the recording port.
#include "ZTKOutcome.h"

#include <cstring>
#include <functional>
#include <thread>

#include "support/core_test.h"
#include "support/plain_text.h"

namespace ztk::test {
namespace {

using platform::notification_center::Handover;
using platform::usb::Code;

ZTKOutcome Last() {
  ZTKOutcome outcome;
  std::memset(&outcome, 0xEE, sizeof outcome);
  outcome.size = sizeof outcome;
  EXPECT_EQ(ZTK_GetLastOutcome(&outcome), 100u);
  EXPECT_EQ(outcome.size, sizeof outcome);
  return outcome;
}

// Returns "result/opened/length/system code" of a request.
std::string Told(const ZTKRequestOutcome &request) {
  return std::to_string(request.result) + "/" + std::to_string(request.opened) +
         "/" + std::to_string(request.length) + "/" +
         std::to_string(request.systemCode);
}

constexpr char kNothing[] = "0/0/0/0";

bool IsEmptyRecord(const ZTKOutcome &outcome) {
  ZTKOutcome empty = {};
  empty.size = sizeof empty;
  return std::memcmp(&outcome, &empty, sizeof empty) == 0;
}

fake::Device WithSelectors() {
  return MixerAnswering(0x8002, {.result = 0, .bytes = {0, 4, 4, 4, 4}});
}

class Outcome : public CoreTest {};

TEST_F(Outcome, OfASetterContainsBothRequestsOfEachMixer) {
  CurrentWorld().bus = {WithSelectors(), WithSelectors()};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 0), 100u);
  const ZTKOutcome outcome = Last();
  EXPECT_EQ(outcome.mixersFound, 2u);
  EXPECT_EQ(outcome.mixersListed, 2u);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Told(outcome.mixers[i].write), "1/1/0/0");
    EXPECT_EQ(Told(outcome.mixers[i].read), "1/1/5/0");
  }
  EXPECT_EQ(Told(outcome.mixers[2].write), kNothing);
  EXPECT_EQ(outcome.announcement.result, ZTK_ANNOUNCEMENT_SENT);
}

TEST_F(Outcome, ContainsTheReasonOfAFailedRequest) {
  const struct {
    const char *name;
    Code code;
    std::int32_t systemCode;
    const char *expected;
  } kRows[] = {{"stall", 0xE000404F, 32, "2/1/0/32"},
               {"silence", 0xE00002D6, 110, "3/1/0/110"},
               {"silence of a transaction", 0xE0004051, 1, "3/1/0/1"},
               {"no response", 0xE00002ED, 1, "3/1/0/1"},
               {"unplugged", 0xE00002C0, 19, "4/1/0/19"},
               {"not attached", 0xE00002D9, 19, "4/1/0/19"},
               {"not permitted", 0xE00002E2, 13, "5/1/0/13"},
               {"anything else", 0xE00002BC, 71, "6/1/0/71"}};
  for (const auto &row : kRows) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    CurrentWorld().bus = {Mixer(), Mixer()};
    CurrentWorld().bus[0].writeResult = row.code;
    CurrentWorld().bus[0].systemCodeOfRequests = row.systemCode;
    EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
    const ZTKOutcome outcome = Last();
    EXPECT_EQ(Told(outcome.mixers[0].write), row.expected);
    EXPECT_EQ(Told(outcome.mixers[0].read), kNothing);
    EXPECT_EQ(Told(outcome.mixers[1].write), "1/1/0/0");
  }
}

TEST_F(Outcome, ContainsTheReasonIfAMixerCannotBeOpened) {
  const struct {
    const char *name;
    Code code;
    std::int32_t systemCode;
    const char *expected;
  } kRows[] = {{"not permitted", 0xE00002E2, 13, "5/0/0/13"},
               {"gone", 0xE00002C0, 2, "4/0/0/2"},
               {"too many files", 0xE00002BC, 24, "6/0/0/24"}};
  for (const auto &row : kRows) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    CurrentWorld().bus = {Mixer(), WithSelectors()};
    CurrentWorld().bus[0].canBeOpened = false;
    CurrentWorld().bus[0].openResult = {.code = row.code,
                                        .systemCode = row.systemCode};
    ZTK_SetUSBInputAudio(10, 1, 2);
    const ZTKOutcome outcome = Last();
    EXPECT_EQ(Told(outcome.mixers[0].write), row.expected);
    EXPECT_EQ(Told(outcome.mixers[0].read), row.expected);
    EXPECT_EQ(Told(outcome.mixers[1].write), "1/1/0/0");
  }
}

// The mixer was counted, and was unplugged before it was opened.
TEST_F(Outcome, ReportsAMixerAsGoneIfTheSearchDoesNotFindIt) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  CurrentWorld().bus[0].hasInterface = false;
  ZTK_SetBoostLevelIndex(10, 1);
  EXPECT_EQ(Told(Last().mixers[0].write), "1/1/0/0");
  EXPECT_EQ(Told(Last().mixers[1].write), "4/0/0/0");
}

// Such a mixer may still be attached.
TEST_F(Outcome, DoesNotReportAMixerAsGoneIfTheBusCannotBeSearched) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().masterPortResult = 0xE00002BC;
  ZTK_SetBoostLevelIndex(10, 1);
  EXPECT_EQ(Told(Last().mixers[0].write), "6/0/0/0");
}

TEST_F(Outcome, ReportsThatADeviceAfterTheMixerFailed) {
  CurrentWorld().bus = {Mixer(), OtherDevice()};
  CurrentWorld().bus[1].vendorResult = 0xE00002BC;
  ZTK_SetBoostLevelIndex(10, 1);
  EXPECT_EQ(Told(Last().mixers[0].write), "6/0/0/0");
}

TEST_F(Outcome, ContainsTheLengthOfTheReply) {
  CurrentWorld().bus = {MixerAnswering(0x8007, {.result = 0, .bytes = {1, 2}})};
  std::uint32_t level = 0;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &level), 100u);
  EXPECT_EQ(Told(Last().mixers[0].read), "1/1/2/0");
  EXPECT_EQ(Told(Last().mixers[0].write), kNothing);
}

TEST_F(Outcome, ContainsTheResultOfTheAnnouncement) {
  const struct {
    Handover handover;
    std::int32_t systemCode;
    std::uint32_t expected;
  } kRows[] = {{Handover::Sent, 0, 1},
               {Handover::NoCenter, 2, 2},
               {Handover::Failed, 110, 3}};
  for (const auto &row : kRows) {
    CurrentWorld().postResult = {.handover = row.handover,
                                 .systemCode = row.systemCode};
    EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 3), 100u);
    EXPECT_EQ(Last().announcement.result, row.expected);
    EXPECT_EQ(Last().announcement.systemCode, row.systemCode);
  }
}

TEST_F(Outcome, HasNoAnnouncementAndNoStoreAfterAResend) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u);
  const ZTKOutcome outcome = Last();
  EXPECT_EQ(Told(outcome.mixers[0].write), "1/1/0/0");
  EXPECT_EQ(outcome.announcement.result, ZTK_ANNOUNCEMENT_NONE);
  EXPECT_EQ(outcome.store.result, ZTK_FILE_NONE);
}

TEST_F(Outcome, ListsAtMost127MixersAndCountsAll) {
  CurrentWorld().bus.assign(130, Mixer());
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  const ZTKOutcome outcome = Last();
  EXPECT_EQ(outcome.mixersFound, 130u);
  EXPECT_EQ(outcome.mixersListed, 127u);
  EXPECT_EQ(Told(outcome.mixers[126].write), "1/1/0/0");
}

TEST_F(Outcome, DoesNotContainTheMixersOfTheLastCall) {
  CurrentWorld().bus = {WithSelectors(), WithSelectors(), WithSelectors()};
  ZTK_SetUSBInputAudio(10, 0, 0);
  CurrentWorld().bus = {Mixer()};
  ZTK_SetBoostLevelIndex(10, 1);
  const ZTKOutcome outcome = Last();
  EXPECT_EQ(Told(outcome.mixers[0].read), kNothing);
  EXPECT_EQ(Told(outcome.mixers[1].write), kNothing);
  EXPECT_EQ(outcome.mixersListed, 1u);
}

// Each call rejects its arguments and clears the record of the call before it.
TEST_F(Outcome, IsEmptyAfterARejectedCall) {
  std::uint32_t number = 0;
  ZTKTextRef text = nullptr;
  const std::function<ZTKResult()> kCalls[] = {
      [] { return ZTK_SetUSBInputAudio(8, 0, 0); },
      [] { return ZTK_SetUSBInputAudioDirect(8, 0, 0, 0); },
      [&] { return ZTK_GetCurrentUSBInputAudioIndex(8, 0, &number); },
      [] { return ZTK_SetCurrentUSBInputAudio(8, 0); },
      [] { return ZTK_SetUSBOutputAudio(10, 0, 0); },
      [] { return ZTK_SetUSBOutputAudioDefault(10, 0); },
      [&] { return ZTK_GetCurrentUSBOutputAudioIndex(10, 0, &number); },
      [] { return ZTK_SetCurrentUSBOutputAudio(10, 0); },
      [] { return ZTK_SetBoostLevelIndex(8, 0); },
      [&] { return ZTK_GetCurrentBoostLevelIndex(8, &number); },
      [] { return ZTK_SetCurrentBoostLevelIndex(8); },
      [] { return ZTK_SetMidiChannelIndex(10, 0); },
      [&] { return ZTK_GetCurrentMidiChannelIndex(10, &number); },
      [] { return ZTK_SetCurrentMidiChannelIndex(10); },
      [&] { return ZTK_GetMixerCertifyLevel(8, &number); },
      [&] { return ZTK_GetFirmwareVersionIndex(8, &number); },
      [&] { return ZTK_GetMixerInputSelectorStatus(8, 0, &number); },
      [&] { return ZTK_GetMixerSeratoActiveStatus(8, &number); },
      [&] { return ZTK_GetPkgVersionText(8, &text); },
      [&] { return ZTK_GetDriverVersionText(8, &text); },
      [&] { return ZTK_GetUtilityVersionText(8, &text); },
      [&] { return ZTK_GetLibraryVersionText(8, &text); },
      [&] {
        return ZTK_GetWarningTextForSetUSBAudioInput(8, 0, 101, 0, &text);
      }};
  int row = 0;
  for (const auto &call : kCalls) {
    SCOPED_TRACE(row++);
    CurrentWorld().bus = {Mixer()};
    ZTK_SetBoostLevelIndex(10, 1);
    EXPECT_FALSE(IsEmptyRecord(Last()));
    EXPECT_EQ(call(), 102u);
    EXPECT_TRUE(IsEmptyRecord(Last()));
  }
}

TEST_F(Outcome, ContainsTheResultOfReadingAFile) {
  constexpr char kPkgFile[] =
      "/private/var/db/receipts/com.tarvix.VRM-D6.pkg.plist";
  ZTKTextRef text = nullptr;
  EXPECT_EQ(ZTK_GetPkgVersionText(10, &text), 102u);
  EXPECT_EQ(Last().read.result, 2u);  // absent
  CurrentWorld().files[kPkgFile] = {{"PackageVersion", "1.2"}};
  EXPECT_EQ(ZTK_GetPkgVersionText(10, &text), 100u);
  EXPECT_EQ(Last().read.result, 1u);
  // The file can be read, but has no such key.
  CurrentWorld().files[kPkgFile] = {};
  EXPECT_EQ(ZTK_GetPkgVersionText(10, &text), 102u);
  EXPECT_EQ(Last().read.result, 1u);
  EXPECT_EQ(Last().store.result, 0u);
}

TEST_F(Outcome, ContainsTheResultOfReadingTheTextsOfALanguage) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().bundles["/System/Library/Frameworks/VRM-D6Setup.framework"] = {
      .resourcePath = "/r", .preferredTexts = {}};
  ZTKTextRef text = nullptr;
  EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(10, 0, 101, 0, &text), 100u);
  EXPECT_EQ(Last().read.result, 2u);
  CurrentWorld().files["/r/English.lproj/Localizable.strings"] = {
      {"WARNING2", "Turn it."}};
  EXPECT_EQ(ZTK_GetWarningTextForSetUSBAudioInput(10, 0, 101, 0, &text), 100u);
  EXPECT_EQ(Last().read.result, 1u);
  EXPECT_EQ(Plain(text), "Turn it.");
}

TEST_F(Outcome, ContainsTheCountAfterAConnectionQuery) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
  EXPECT_EQ(Last().mixersFound, 2u);
  EXPECT_EQ(Told(Last().mixers[0].write), kNothing);
}

TEST_F(Outcome, IsClearedByAConnectionQuery) {
  CurrentWorld().bus = {WithSelectors()};
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_EQ(Last().store.result, ZTK_FILE_OK);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
  EXPECT_EQ(Last().store.result, ZTK_FILE_NONE);
  EXPECT_EQ(Told(Last().mixers[0].write), kNothing);
}

TEST_F(Outcome, IsRejectedWithoutASize) {
  EXPECT_EQ(ZTK_GetLastOutcome(nullptr), 102u);
  ZTKOutcome outcome = {};
  outcome.mixersFound = 77;
  for (const std::uint32_t size : {0u, 3u}) {
    outcome.size = size;
    EXPECT_EQ(ZTK_GetLastOutcome(&outcome), 102u);
  }
  outcome.size = 4;
  EXPECT_EQ(ZTK_GetLastOutcome(&outcome), 100u);
  EXPECT_EQ(outcome.size, 4u);
  EXPECT_EQ(outcome.mixersFound, 77u);
}

TEST_F(Outcome, IsNotChangedByACallThatReadsOnlyATable) {
  CurrentWorld().bus = {Mixer()};
  ZTK_SetBoostLevelIndex(10, 1);
  std::uint32_t count = 0;
  EXPECT_EQ(ZTK_GetNumOfBoostLevelIndex(10, &count), 100u);
  EXPECT_EQ(Last().mixersFound, 1u);
}

TEST_F(Outcome, IsSeparateForEachThread) {
  CurrentWorld().bus = {Mixer()};
  ZTK_SetBoostLevelIndex(10, 1);
  std::thread([] {
    EXPECT_TRUE(IsEmptyRecord(Last()));
    ZTK_SetBoostLevelIndex(8, 1);
    EXPECT_TRUE(IsEmptyRecord(Last()));
  }).join();
  EXPECT_EQ(Last().mixersFound, 1u);
}

}  // namespace
}  // namespace ztk::test
