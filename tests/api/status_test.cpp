// SPDX-License-Identifier: MIT
#include <algorithm>
#include <functional>

#include "api/api_test.h"

namespace ztk::test {
namespace {

using fake::Answer;
using fake::Code;

constexpr std::uint16_t kFirmware = 0x8001;
constexpr std::uint16_t kSelectors = 0x8002;
constexpr std::uint16_t kSerato = 0x8004;
constexpr std::uint16_t kCertify = 0x8007;

constexpr Code kStalled = platform::usb::kPipeStalled;
constexpr Code kTimedOut = platform::usb::kTimeout;

// The result of a query, and its output afterwards.
struct QueryResult {
  ZTKResult result;
  std::uint32_t output;
  bool operator==(const QueryResult &) const = default;
};

using Query = std::function<ZTKResult(std::uint32_t *)>;

class StatusTest : public ApiTest {
 protected:
  static QueryResult Ask(Bus bus, const Query &query) {
    StartAfresh(std::move(bus));
    std::uint32_t output = kUntouched;
    const ZTKResult result = query(&output);
    return {.result = result, .output = output};
  }
};

Device SilentAt(std::uint16_t reg) {
  return MixerAnswering(reg, {.result = kTimedOut, .bytes = {}});
}

ZTKResult CertifyLevel(std::uint32_t *out) {
  return ZTK_GetMixerCertifyLevel(10, out);
}
ZTKResult FirmwareVersion(std::uint32_t *out) {
  return ZTK_GetFirmwareVersionIndex(10, out);
}
ZTKResult Serato(std::uint32_t *out) {
  return ZTK_GetMixerSeratoActiveStatus(10, out);
}
Query SelectorOf(std::uint32_t channel) {
  return [channel](std::uint32_t *out) {
    return ZTK_GetMixerInputSelectorStatus(10, channel, out);
  };
}

class GetMixerCertifyLevel : public StatusTest {};

TEST_F(GetMixerCertifyLevel, ReadsFourBytesBigEndianAndZeroForMissingOnes) {
  const struct {
    const char *name;
    Answer answer;
    std::uint32_t expected;
  } rows[] = {{"four bytes", {.bytes = {1, 2, 3, 4}}, 16909060},
              {"all ones", {.bytes = {0xFF, 0xFF, 0xFF, 0xFF}}, 4294967295},
              {"more than asked for", {.bytes = {1, 2, 3, 4, 5, 6}}, 16909060},
              {"three bytes", {.bytes = {1, 2, 3}}, 16909056},
              {"two bytes", {.bytes = {1, 2}}, 16908288},
              {"one byte", {.bytes = {1}}, 16777216},
              {"none", {.bytes = {}}, 0},
              {"refused", {.result = kStalled, .bytes = {}}, 0},
              {"two bytes, then silence",
               {.result = kTimedOut, .bytes = {1, 2}},
               16908288},
              {"four bytes and a failure",
               {.result = kStalled, .bytes = {1, 2, 3, 4}},
               16909060}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Ask({MixerAnswering(kCertify, row.answer)}, CertifyLevel),
              (QueryResult{.result = 100, .output = row.expected}));
  }
}

TEST_F(GetMixerCertifyLevel, AsksEveryMixerThatCanBeOpened) {
  ExpectEveryWalk({.request = "c0 00 0000 8007 0004 -> 00 00 00 01"}, [] {
    std::uint32_t level = 0;
    return ZTK_GetMixerCertifyLevel(10, &level);
  });
}

TEST_F(GetMixerCertifyLevel, IsZeroWhenNoMixerAnswers) {
  const QueryResult zero{.result = 100, .output = 0};
  EXPECT_EQ(Ask({}, CertifyLevel), zero);
  EXPECT_EQ(Ask({UnreachableMixer()}, CertifyLevel), zero);
}

TEST_F(GetMixerCertifyLevel, ReturnsTheLevelOfTheLastMixerThatCanBeOpened) {
  const Device first = MixerAnswering(kCertify, {.bytes = {1, 2, 3, 4}});
  const Device second = MixerAnswering(kCertify, {.bytes = {0, 0, 0, 9}});
  const Device silent = SilentAt(kCertify);
  EXPECT_EQ(Ask({first, second}, CertifyLevel),
            (QueryResult{.result = 100, .output = 9}));
  EXPECT_EQ(Ask({first, UnreachableMixer()}, CertifyLevel),
            (QueryResult{.result = 100, .output = 16909060}));
  // The buffer is cleared for each mixer.
  EXPECT_EQ(Ask({first, silent}, CertifyLevel),
            (QueryResult{.result = 100, .output = 0}));
}

TEST_F(GetMixerCertifyLevel, DoesNotWriteTheOutputForARefusedProduct) {
  std::uint32_t level = kUntouched;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(8, &level), 102u);
  EXPECT_EQ(level, kUntouched);
}

class GetFirmwareVersionIndex : public StatusTest {};

TEST_F(GetFirmwareVersionIndex, ReadsTwoBytesLowByteFirst) {
  const struct {
    const char *name;
    Answer answer;
    std::uint32_t expected;
  } rows[] = {
      {"two bytes", {.bytes = {0x36, 0x04}}, 1078},
      {"all ones", {.bytes = {0xFF, 0xFF}}, 65535},
      {"more than asked for", {.bytes = {1, 2, 3, 4}}, 513},
      {"one byte", {.bytes = {0x36}}, 54},
      {"none", {.bytes = {}}, 0},
      {"refused", {.result = kStalled, .bytes = {}}, 0},
      {"one byte, then silence", {.result = kTimedOut, .bytes = {0x37}}, 55},
      {"two bytes and a failure",
       {.result = kStalled, .bytes = {0x36, 0x04}},
       1078}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Ask({MixerAnswering(kFirmware, row.answer)}, FirmwareVersion),
              (QueryResult{.result = 100, .output = row.expected}));
  }
}

TEST_F(GetFirmwareVersionIndex, AsksTheFirstMixerOnly) {
  const Device first = MixerAnswering(kFirmware, {.bytes = {1, 0}});
  const Device second = MixerAnswering(kFirmware, {.bytes = {2, 0}});
  EXPECT_EQ(Ask({first, second}, FirmwareVersion),
            (QueryResult{.result = 100, .output = 1}));
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1",
                          "mixer 1: c0 00 0000 8001 0002 -> 01 00", "close 1"));
  EXPECT_EQ(Ask({UnreachableMixer(), second}, FirmwareVersion),
            (QueryResult{.result = 100, .output = 0}));
  EXPECT_THAT(TakeSteps(), ElementsAre("count", "cannot open 1"));
}

TEST_F(GetFirmwareVersionIndex, IsZeroWhenNoMixerAnswers) {
  const QueryResult zero{.result = 100, .output = 0};
  EXPECT_EQ(Ask({}, FirmwareVersion), zero);
  EXPECT_THAT(TakeSteps(), ElementsAre("count"));
  EXPECT_EQ(Ask({Mixer(), WithoutPlugIn(OtherDevice())}, FirmwareVersion),
            zero);
  EXPECT_THAT(TakeSteps(), ElementsAre("count", "open 1"));
}

TEST_F(GetFirmwareVersionIndex, OpensNothingIfNoMixerIsCounted) {
  EXPECT_EQ(Ask({OtherDevice(), OtherDevice()}, FirmwareVersion),
            (QueryResult{.result = 100, .output = 0}));
  EXPECT_THAT(TakeSteps(), ElementsAre("count"));
  const auto calls = TakeCalls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "find every service"), 0);
}

TEST_F(GetFirmwareVersionIndex, WritesZeroEvenForARefusedProduct) {
  std::uint32_t version = kUntouched;
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(8, &version), 102u);
  EXPECT_EQ(version, 0u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

class GetMixerInputSelectorStatus : public StatusTest {};

TEST_F(GetMixerInputSelectorStatus, ReadsTheByteAtChannelPlusOne) {
  const Device mixer =
      MixerAnswering(kSelectors, {.bytes = {0xFF, 1, 2, 3, 16}});
  const std::uint32_t expected[] = {1, 2, 3, 16};
  for (std::uint32_t channel = 0; channel < 4; ++channel) {
    SCOPED_TRACE(channel);
    EXPECT_EQ(Ask({mixer}, SelectorOf(channel)),
              (QueryResult{.result = 100, .output = expected[channel]}));
  }
}

TEST_F(GetMixerInputSelectorStatus, IsZeroForTheLastChannelWithAnyReply) {
  const Device mixer =
      MixerAnswering(kSelectors, {.bytes = {99, 99, 99, 99, 99, 99, 99, 99}});
  EXPECT_EQ(Ask({mixer}, SelectorOf(4)),
            (QueryResult{.result = 100, .output = 0}));
}

TEST_F(GetMixerInputSelectorStatus, RejectsAChannelOutOfRange) {
  for (const std::uint32_t channel :
       {5u, 6u, 0x7FFFFFFFu, 0x80000000u, 4294967295u}) {
    SCOPED_TRACE(channel);
    EXPECT_EQ(Ask({Mixer()}, SelectorOf(channel)),
              (QueryResult{.result = 102, .output = kUntouched}));
    EXPECT_THAT(TakeCalls(), IsEmpty());
  }
}

TEST_F(GetMixerInputSelectorStatus, AcceptsSixteenAndRejectsSeventeen) {
  const struct {
    std::uint8_t position;
    ZTKResult expected;
  } rows[] = {{0, 100}, {4, 100}, {15, 100}, {16, 100}, {17, 102}, {255, 102}};
  for (const auto &row : rows) {
    EXPECT_EQ(Ask({MixerAnswering(kSelectors, {.bytes = {0, 0, row.position}})},
                  SelectorOf(1)),
              (QueryResult{.result = row.expected, .output = row.position}));
  }
}

TEST_F(GetMixerInputSelectorStatus, IsZeroIfTheMixerDoesNotSendTheByte) {
  const QueryResult zero{.result = 100, .output = 0};
  const std::vector<std::uint8_t> all = {7, 7, 7, 7, 7};
  for (std::uint32_t length = 0; length <= 5; ++length) {
    const std::vector<std::uint8_t> bytes(all.begin(), all.begin() + length);
    for (std::uint32_t channel = 0; channel < 4; ++channel) {
      for (const Code result : {platform::usb::kSuccess, kStalled, kTimedOut}) {
        EXPECT_EQ(
            Ask({MixerAnswering(kSelectors,
                                {.result = result, .bytes = bytes})},
                SelectorOf(channel)),
            (length > channel + 1 ? QueryResult{.result = 100, .output = 7}
                                  : zero))
            << "length " << length << ", channel " << channel;
      }
    }
  }
}

TEST_F(GetMixerInputSelectorStatus, AsksEveryMixerThatCanBeOpened) {
  ExpectEveryWalk({.request = "c0 00 0000 8002 0005 -> 00 04 04 04 04"}, [] {
    std::uint32_t position = 0;
    return ZTK_GetMixerInputSelectorStatus(10, 0, &position);
  });
}

TEST_F(GetMixerInputSelectorStatus, DoesNotWriteTheOutputIfNoMixerCanBeOpened) {
  const QueryResult untouched{.result = 100, .output = kUntouched};
  EXPECT_EQ(Ask({}, SelectorOf(0)), untouched);
  EXPECT_EQ(Ask({UnreachableMixer()}, SelectorOf(0)), untouched);
}

TEST_F(GetMixerInputSelectorStatus, ReturnsTheLastMixerAndStopsAtABadPosition) {
  const Device good = MixerAnswering(kSelectors, {.bytes = {0, 3}});
  const Device other = MixerAnswering(kSelectors, {.bytes = {0, 5}});
  const Device bad = MixerAnswering(kSelectors, {.bytes = {0, 17}});
  const Device silent = SilentAt(kSelectors);
  EXPECT_EQ(Ask({good, other}, SelectorOf(0)),
            (QueryResult{.result = 100, .output = 5}));
  EXPECT_EQ(Ask({good, UnreachableMixer()}, SelectorOf(0)),
            (QueryResult{.result = 100, .output = 3}));
  EXPECT_EQ(Ask({good, silent}, SelectorOf(0)),
            (QueryResult{.result = 100, .output = 0}));
  EXPECT_EQ(Ask({good, bad}, SelectorOf(0)),
            (QueryResult{.result = 102, .output = 17}));
  EXPECT_EQ(Ask({bad, good}, SelectorOf(0)),
            (QueryResult{.result = 102, .output = 17}));
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1",
                          "mixer 1: c0 00 0000 8002 0005 -> 00 11", "close 1"));
}

class GetMixerSeratoActiveStatus : public StatusTest {};

TEST_F(GetMixerSeratoActiveStatus, ReadsTheFirstByteAndRejectsTwoAndMore) {
  const QueryResult unknown{.result = 102, .output = kUntouched};
  const QueryResult inactive{.result = 100, .output = 0};
  const QueryResult active{.result = 100, .output = 1};
  const struct {
    const char *name;
    Answer answer;
    QueryResult expected;
  } rows[] = {
      {"inactive", {.bytes = {0, 0}}, inactive},
      {"active", {.bytes = {1, 0}}, active},
      {"the second byte does not matter", {.bytes = {1, 9}}, active},
      {"two", {.bytes = {2, 0}}, unknown},
      {"255", {.bytes = {255, 0}}, unknown},
      {"one byte 0", {.bytes = {0}}, inactive},
      {"one byte 1", {.bytes = {1}}, active},
      {"no byte", {.bytes = {}}, unknown},
      {"refused", {.result = kStalled, .bytes = {}}, unknown},
      {"silence", {.result = kTimedOut, .bytes = {}}, unknown},
      {"a byte, then silence", {.result = kTimedOut, .bytes = {1}}, active}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(Ask({MixerAnswering(kSerato, row.answer)}, Serato), row.expected);
  }
}

TEST_F(GetMixerSeratoActiveStatus, AsksEveryMixerThatCanBeOpened) {
  ExpectEveryWalk({.request = "c0 00 0000 8004 0002 -> 00 00"}, [] {
    std::uint32_t active = 0;
    return ZTK_GetMixerSeratoActiveStatus(10, &active);
  });
}

TEST_F(GetMixerSeratoActiveStatus, SearchesTheBusOnceForEachMixer) {
  std::uint32_t active = 77;
  CurrentWorld().bus = {
      MixerAnswering(kSerato, {.result = 0, .bytes = {1, 0}}),
      MixerAnswering(kSerato, {.result = 0, .bytes = {1, 0}})};
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &active), 100u);
  const std::vector<std::string> calls = TakeCalls();
  EXPECT_EQ(std::count(calls.begin(), calls.end(), "find every service"), 2);
}

TEST_F(GetMixerSeratoActiveStatus, DoesNotWriteTheOutputIfNoMixerCanBeOpened) {
  const QueryResult untouched{.result = 100, .output = kUntouched};
  EXPECT_EQ(Ask({}, Serato), untouched);
  EXPECT_EQ(Ask({UnreachableMixer()}, Serato), untouched);
}

TEST_F(GetMixerSeratoActiveStatus, ReturnsTheLastMixerAndStopsAtABadState) {
  const Device active = MixerAnswering(kSerato, {.bytes = {1, 0}});
  const Device inactive = MixerAnswering(kSerato, {.bytes = {0, 0}});
  const Device bad = MixerAnswering(kSerato, {.bytes = {2, 0}});
  const Device silent = SilentAt(kSerato);
  EXPECT_EQ(Ask({active, inactive}, Serato),
            (QueryResult{.result = 100, .output = 0}));
  EXPECT_EQ(Ask({active, UnreachableMixer()}, Serato),
            (QueryResult{.result = 100, .output = 1}));
  // The output contains the answer of the first mixer.
  EXPECT_EQ(Ask({active, bad}, Serato),
            (QueryResult{.result = 102, .output = 1}));
  EXPECT_EQ(Ask({active, silent}, Serato),
            (QueryResult{.result = 102, .output = 1}));
  EXPECT_EQ(Ask({bad, active}, Serato),
            (QueryResult{.result = 102, .output = kUntouched}));
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1",
                          "mixer 1: c0 00 0000 8004 0002 -> 02 00", "close 1"));
}

class StatusQueries : public StatusTest {};

TEST_F(StatusQueries, ReleaseAllObjectsExceptThoseOfTheCount) {
  for (const Query &query : {Query(CertifyLevel), Query(FirmwareVersion),
                             SelectorOf(0), Query(Serato)}) {
    Ask({OtherDevice(), Mixer()}, query);
    EXPECT_EQ(CurrentWorld().held, OneCount());
  }
}

}  // namespace
}  // namespace ztk::test
