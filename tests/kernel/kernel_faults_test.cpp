// SPDX-License-Identifier: MIT
//
// Tests the complete library on a real kernel with mixers that fail or are
// unplugged.
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <thread>

#include "ZTKFunc.h"
#include "kernel_world.h"
#include "support/library_world.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::Each;
using virtual_mixer::MixerModel;

constexpr std::uint32_t kError = 0xE00002BC;
constexpr std::uint32_t kNoDevice = 0xE00002C0;

class KernelFaults : public LibraryWorld {
 protected:
  void Inject(int mixer, const std::string &text) {
    std::string error;
    const auto fault = virtual_mixer::ParseFault(text, &error);
    ASSERT_TRUE(fault) << error;
    world().WithMixer(mixer,
                      [&](MixerModel &model) { model.AddFault(*fault); });
  }
  void ClearFaults(int mixer) {
    world().WithMixer(mixer, [](MixerModel &model) { model.ClearFaults(); });
  }
};

TEST_F(KernelFaults, AfterAStallTheNextRequestSucceeds) {
  PlugMixers(2);
  Inject(1, "stall*1");
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000 -> stall",
                                     "mixer 2: 40 03 0300 8003 0000",
                                     "mixer 1: 40 03 0200 8003 0000",
                                     "mixer 2: 40 03 0200 8003 0000"));
}

TEST_F(KernelFaults, AfterATimeOutTheNextMixerReceivesTheValue) {
  PlugMixers(2);
  Inject(1, "silence*1");
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000 -> silence",
                                     "mixer 2: 40 03 0300 8003 0000"));
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0200 8003 0000",
                                     "mixer 2: 40 03 0200 8003 0000"));
}

TEST_F(KernelFaults, TheLibraryWaitsForALateAnswer) {
  PlugMixers(1);
  Inject(1, "delay:200@8001");
  uint32_t value = 0;
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 1078u);
}

TEST_F(KernelFaults, AMixerUnpluggedBetweenCountAndOpenIsSkipped) {
  PlugMixers(2);
  EXPECT_EQ(CheckUSBAudio(10), 2);
  world().Unplug(2);
  usb::Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 1), kError);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  closeUSB(&slot);
}

TEST_F(KernelFaults, AMixerUnpluggedBetweenOpenAndRequestIsNoDevice) {
  PlugMixers(1);
  usb::Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  world().Unplug(1);
  std::uint8_t bytes[6] = {7, 7, 7, 7, 7, 7};
  EXPECT_EQ(GetInputSelectorInfo(slot, bytes, 5), kNoDevice);
  EXPECT_THAT(bytes, Each(7));
  closeUSB(&slot);
  EXPECT_EQ(slot, nullptr);
}

TEST_F(KernelFaults, AfterAMixerIsUnpluggedASetterContinuesWithTheNext) {
  PlugMixers(2);
  Inject(1, "unplug@8003");
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_EQ(TakeLog().front(), "mixer 1: 40 03 0300 8003 0000 -> gone");
  ASSERT_TRUE(WaitFor("the mixer is off the bus",
                      [] { return KernelWorld::DeviceOf(1).empty(); }));
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 2: 40 03 0200 8003 0000"));
}

TEST_F(KernelFaults, AQueryFailsIfTheMixerIsUnplugged) {
  const struct {
    const char *name;
    ZTKResult (*call)(uint32_t *value);
    ZTKResult result;
    uint32_t value;
  } rows[] = {
      {"certification",
       [](uint32_t *value) { return ZTK_GetMixerCertifyLevel(10, value); }, 100,
       0},
      {"firmware",
       [](uint32_t *value) { return ZTK_GetFirmwareVersionIndex(10, value); },
       100, 0},
      {"selector",
       [](uint32_t *value) {
         return ZTK_GetMixerInputSelectorStatus(10, 0, value);
       },
       100, 0},
      {"Serato",
       [](uint32_t *value) {
         return ZTK_GetMixerSeratoActiveStatus(10, value);
       },
       102, 77},
  };
  PlugMixers(1);
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    Inject(1, "unplug");
    uint32_t value = 77;
    EXPECT_EQ(row.call(&value), row.result);
    EXPECT_EQ(value, row.value);
    ASSERT_TRUE(WaitFor("the mixer is off the bus",
                        [] { return KernelWorld::DeviceOf(1).empty(); }));
    world().PlugIn(1);
  }
}

// The request has been sent, and the mixer does not answer.
TEST_F(KernelFaults, UnpluggingASilentMixerEndsTheRequest) {
  PlugMixers(1);
  Inject(1, "silence");
  usb::Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  std::thread unplugger([this] {
    // Gives the main thread time to send the request and to wait for the mixer.
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    world().Unplug(1);
  });
  EXPECT_EQ(SetMidiChannelSetting(slot, 0x0100), kNoDevice);
  unplugger.join();
  closeUSB(&slot);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0100 8004 0000 -> gone"));
}

TEST_F(KernelFaults, AMixerKeepsItsSelectorsWhenItIsPluggedInAgain) {
  PlugMixers(1);
  world().WithMixer(1, [](MixerModel &model) { model.TurnSelector(0, 9); });
  world().Unplug(1);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  world().PlugIn(1);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
  uint32_t value = 0;
  EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 0, &value), 100u);
  EXPECT_EQ(value, 9u);
}

TEST_F(KernelFaults, AfterAShortReplyTheOtherBytesKeepTheirPreset) {
  const struct {
    const char *fault;
    ZTKResult (*call)(uint32_t *value);
    ZTKResult result;
    uint32_t value;
  } rows[] = {
      {"short:0@8007",
       [](uint32_t *value) { return ZTK_GetMixerCertifyLevel(10, value); }, 100,
       0},
      {"short:1@8007",
       [](uint32_t *value) { return ZTK_GetMixerCertifyLevel(10, value); }, 100,
       0x09000000},
      {"short:3@8007",
       [](uint32_t *value) { return ZTK_GetMixerCertifyLevel(10, value); }, 100,
       0x09080700},
      {"short:0@8001",
       [](uint32_t *value) { return ZTK_GetFirmwareVersionIndex(10, value); },
       100, 0},
      {"short:1@8001",
       [](uint32_t *value) { return ZTK_GetFirmwareVersionIndex(10, value); },
       100, 0x36},
      {"short:0@8002",
       [](uint32_t *value) {
         return ZTK_GetMixerInputSelectorStatus(10, 0, value);
       },
       100, 0},
      {"short:1@8002",
       [](uint32_t *value) {
         return ZTK_GetMixerInputSelectorStatus(10, 0, value);
       },
       100, 0},
      {"short:2@8002",
       [](uint32_t *value) {
         return ZTK_GetMixerInputSelectorStatus(10, 0, value);
       },
       100, 4},
      {"short:0@8004",
       [](uint32_t *value) {
         return ZTK_GetMixerSeratoActiveStatus(10, value);
       },
       102, 77},
      {"short:1@8004",
       [](uint32_t *value) {
         return ZTK_GetMixerSeratoActiveStatus(10, value);
       },
       100, 0},
      // The selectors are read after the routing was sent. The preset position
      // is 0.
      {"short:0@r8002",
       [](uint32_t *) { return ZTK_SetUSBInputAudio(10, 1, 0); }, 101, 77},
      {"short:0@r8002",
       [](uint32_t *) { return ZTK_SetUSBOutputAudio(8, 1, 0); }, 100, 77},
      {"short:0@8006",
       [](uint32_t *) {
         ZTKTextRef text = nullptr;
         return ZTK_GetWarningTextForSetUSBAudioInput(10, 1, 101, 99, &text);
       },
       100, 77},
  };
  PlugMixers(1);
  world().WithMixer(1, [](MixerModel &model) {
    model.SetReply(0x8007, {9, 8, 7, 6});
  });
  for (const auto &row : rows) {
    SCOPED_TRACE(row.fault);
    ClearFaults(1);
    Inject(1, row.fault);
    uint32_t value = 77;
    EXPECT_EQ(row.call(&value), row.result);
    EXPECT_EQ(value, row.value);
  }
}

TEST_F(KernelFaults, WrongBytesAreReturnedUnchanged) {
  PlugMixers(1);
  Inject(1, "bytes:ffffffffffffffff");
  uint32_t value = 77;
  EXPECT_EQ(ZTK_GetMixerCertifyLevel(10, &value), 100u);
  EXPECT_EQ(value, 0xFFFFFFFFu);
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 0xFFFFu);
  EXPECT_EQ(ZTK_GetMixerInputSelectorStatus(10, 0, &value), 102u);
  EXPECT_EQ(value, 255u);
  value = 77;
  EXPECT_EQ(ZTK_GetMixerSeratoActiveStatus(10, &value), 102u);
  EXPECT_EQ(value, 77u);
}

// Returns the open device nodes and sysfs files of this process.
std::vector<std::string> OpenDevices() {
  std::vector<std::string> open;
  for (const auto &entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    const std::string target = fs::read_symlink(entry, gone);
    if (target.starts_with("/dev/bus/") || target.starts_with("/sys/")) {
      open.push_back(target);
    }
  }
  return open;
}

std::size_t CountDescriptors() {
  std::size_t count = 0;
  for (const auto &entry : fs::directory_iterator("/proc/self/fd")) {
    (void)entry;
    ++count;
  }
  return count;
}

// Returns the number of calls. ./check --full sets 10,000.
int SetterCalls() {
  const char *const asked = std::getenv("ZTK_KERNEL_CALLS");
  return asked == nullptr ? 300 : std::atoi(asked);
}

TEST_F(KernelFaults, ManySettersWhileMixersComeAndGo) {
  PlugMixers(2);
  ZTK_SetUSBInputAudio(10, 0, 0);
  const std::size_t descriptors = CountDescriptors();
  // The number of calls for each time that a mixer is unplugged and plugged in.
  // That takes as long as several calls, and calls wait while the kernel
  // configures a mixer.
  constexpr int kCallsPerReplug = 25;
  const int calls = SetterCalls();
  std::atomic<int> done = 0;
  int replugs = 0;
  std::thread unplugger([&] {
    while (done < calls) {
      if (done / kCallsPerReplug < replugs) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        continue;
      }
      const int mixer = 1 + replugs++ % 2;
      world().Unplug(mixer);
      world().PlugIn(mixer);
    }
  });
  std::set<ZTKResult> results;
  for (int i = 0; i < calls; ++i, ++done) {
    const auto step = static_cast<uint32_t>(i);
    switch (i % 4) {
      case 0:
        results.insert(ZTK_SetUSBInputAudio(10, step % 5, step % 7));
        break;
      case 1:
        results.insert(ZTK_SetBoostLevelIndex(10, step % 4));
        break;
      case 2:
        results.insert(ZTK_SetMidiChannelIndex(1, step % 16));
        break;
      default:
        results.insert(ZTK_SetUSBOutputAudio(8, step % 3, step % 3));
    }
  }
  unplugger.join();
  EXPECT_THAT(results, Each(AnyOf(100u, 101u)));
  EXPECT_THAT(OpenDevices(), IsEmpty());
  // The server releases a connection when it notices that it was closed.
  WaitFor("no descriptor is left",
          [&] { return CountDescriptors() == descriptors; });
  EXPECT_EQ(CheckUSBAudio(10), 2);
  RecordProperty("calls", calls);
  RecordProperty("replugs", replugs);
  std::printf("%d setter calls while mixers came and went %d times\n", calls,
              replugs);
}

}  // namespace
}  // namespace ztk::test
