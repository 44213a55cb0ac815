// SPDX-License-Identifier: MIT
//
// Tests with the complete library and virtual mixers that the record of the
// last call contains the error of the system for each fault.
#include <cerrno>
#include <thread>

#include "ZTKOutcome.h"
#include "support/library_world.h"

namespace ztk::test {
namespace {

using virtual_mixer::Fault;
using virtual_mixer::MixerModel;

class LibraryOutcome : public LibraryWorld {
 protected:
  void Inject(int mixer, const std::string &text) {
    std::string error;
    const std::optional<Fault> fault = virtual_mixer::ParseFault(text, &error);
    ASSERT_TRUE(fault) << error;
    world().WithMixer(mixer,
                      [&](MixerModel &model) { model.AddFault(*fault); });
  }

  static ZTKOutcome Last() {
    ZTKOutcome outcome = {};
    outcome.size = sizeof outcome;
    EXPECT_EQ(ZTK_GetLastOutcome(&outcome), 100u);
    return outcome;
  }

  // Returns "result/opened/length/system code" of a request.
  static std::string Describe(const ZTKRequestOutcome &request) {
    return std::to_string(request.result) + "/" +
           std::to_string(request.opened) + "/" +
           std::to_string(request.length) + "/" +
           std::to_string(request.systemCode);
  }
};

TEST_F(LibraryOutcome, ReportsThatEverythingWorked) {
  PlugMixers(2);
  ASSERT_TRUE(bus_.Start());
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 100u);
  const ZTKOutcome outcome = Last();
  EXPECT_EQ(outcome.mixersFound, 2u);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Describe(outcome.mixers[i].write), "1/1/0/0");
    EXPECT_EQ(Describe(outcome.mixers[i].read), "1/1/5/0");
  }
  EXPECT_EQ(outcome.announcement.result, 1u);
  EXPECT_EQ(outcome.announcement.systemCode, 0);
}

// The numbers at the end are EPIPE, ETIMEDOUT and ENODEV.
TEST_F(LibraryOutcome, ReportsEachFaultOfAMixer) {
  const struct {
    const char *fault;
    const char *expected;
  } kRows[] = {{"stall@w8003", "2/1/0/32"},
               {"silence@w8003", "3/1/0/110"},
               {"unplug@w8003", "4/1/0/19"}};
  for (const auto &row : kRows) {
    SCOPED_TRACE(row.fault);
    PlugMixers(2);
    Inject(1, row.fault);
    EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
    const ZTKOutcome outcome = Last();
    EXPECT_EQ(outcome.mixersFound, 2u);
    EXPECT_EQ(Describe(outcome.mixers[0].write), row.expected);
  }
}

TEST_F(LibraryOutcome, ReportsTheLengthOfAShortReply) {
  PlugMixers(1);
  Inject(1, "short:1");
  std::uint32_t version = 0;
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &version), 100u);
  EXPECT_EQ(Describe(Last().mixers[0].read), "1/1/1/0");
}

TEST_F(LibraryOutcome, ReportsThatThereIsNoPermissionToOpenAMixer) {
  PlugMixers(2);
  world().SetForbidden(1, true);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  const ZTKOutcome outcome = Last();
  EXPECT_EQ(Describe(outcome.mixers[0].write), "5/0/0/13");
  EXPECT_EQ(Describe(outcome.mixers[1].write), "1/1/0/0");
}

TEST_F(LibraryOutcome, ReportsAMissingBusAndABusThatDoesNotAnswer) {
  PlugMixers(0);
  bus_.Stop();
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_EQ(Last().announcement.result, 2u);
  EXPECT_NE(Last().announcement.systemCode, 0);

  ASSERT_TRUE(bus_.Start());
  bus_.Suspend();
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_EQ(Last().announcement.result, 3u);
  EXPECT_EQ(Last().announcement.systemCode, ETIMEDOUT);
}

// Both threads call only ZTK_IsUSBConnection(), which any thread may call.
TEST_F(LibraryOutcome, HasOneRecordForEachThread) {
  PlugMixers(3);
  const auto ask = [] {
    for (int i = 0; i < 50; ++i) {
      EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
      EXPECT_EQ(Last().mixersFound, 3u);
    }
  };
  std::thread other(ask);
  ask();
  other.join();
  std::thread([] { EXPECT_EQ(Last().mixersFound, 0u); }).join();
}

}  // namespace
}  // namespace ztk::test
