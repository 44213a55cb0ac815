// SPDX-License-Identifier: MIT
//
// Tests the complete library with the devices of a real kernel: which devices
// it finds, in which order, which device nodes it opens, and which permissions
// it needs.
#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <set>

#include "ZTKFunc.h"
#include "kernel_world.h"
#include "support/every_request.h"
#include "support/library_world.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::UnorderedElementsAre;

class KernelDevices : public LibraryWorld {
 protected:
  void Plug(const std::vector<DeviceKind> &kinds) {
    std::vector<Placement> placements;
    for (const DeviceKind kind : kinds) {
      placements.push_back({.kind = kind, .bus = 1});
    }
    LibraryWorld::Plug(placements);
  }
};

constexpr DeviceKind kMixer = DeviceKind::Mixer;
constexpr DeviceKind kSibling = DeviceKind::Sibling;

TEST_F(KernelDevices, RootHubsAreNotMixers) {
  Plug({});
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(KernelDevices, OtherProductsOfTheMakerAreNotMixers) {
  Plug({kSibling, kSibling});
  EXPECT_EQ(DevicesOnTheBus().size(), 2u);
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 104u);
}

TEST_F(KernelDevices, AMixerBetweenOtherDevicesReceivesTheValue) {
  Plug({kSibling, DeviceKind::Keyboard, kMixer, DeviceKind::Storage, kSibling,
        DeviceKind::Hub});
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
}

TEST_F(KernelDevices, EightMixersReceiveTheValueInBusOrder) {
  Plug({kMixer, kMixer, kMixer, kMixer, kMixer, kMixer, kMixer, kMixer});
  EXPECT_EQ(CheckUSBAudio(10), 8);
  EXPECT_EQ(ZTK_SetMidiChannelIndex(1, 15), 100u);
  EXPECT_THAT(
      TakeLog(),
      ElementsAre(
          "mixer 1: 40 03 0f00 8004 0000", "mixer 2: 40 03 0f00 8004 0000",
          "mixer 3: 40 03 0f00 8004 0000", "mixer 4: 40 03 0f00 8004 0000",
          "mixer 5: 40 03 0f00 8004 0000", "mixer 6: 40 03 0f00 8004 0000",
          "mixer 7: 40 03 0f00 8004 0000", "mixer 8: 40 03 0f00 8004 0000"));
}

// A controller has fifteen ports, so the second mixer is on another bus.
TEST_F(KernelDevices, TheMixersOfTwoBusesReceiveTheValueInOrder) {
  std::vector<DeviceKind> kinds(14, kSibling);
  kinds.insert(kinds.end(), {kMixer, kMixer});
  Plug(kinds);
  ASSERT_EQ(Attribute(KernelWorld::DeviceOf(1), "busnum"), "1");
  ASSERT_EQ(Attribute(KernelWorld::DeviceOf(2), "busnum"), "3");
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000",
                                     "mixer 2: 40 03 0300 8003 0000"));
}

// The mixer gets a new device number, but its port is the same.
TEST_F(KernelDevices, AMixerThatIsPluggedInAgainHasItsOldPosition) {
  Plug({kMixer, kMixer});
  const std::string port = KernelWorld::DeviceOf(1);
  world().Unplug(1);
  world().PlugIn(1);
  ASSERT_EQ(KernelWorld::DeviceOf(1), port);
  ASSERT_GT(std::stoi(Attribute(port, "devnum")),
            std::stoi(Attribute(KernelWorld::DeviceOf(2), "devnum")));
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000",
                                     "mixer 2: 40 03 0300 8003 0000"));
}

// Records which device nodes are opened during a test.
class OpenedNodes {
 public:
  OpenedNodes() : watch_(inotify_init1(IN_CLOEXEC | IN_NONBLOCK)) {
    for (const auto &bus : fs::directory_iterator("/dev/bus/usb")) {
      const int number = inotify_add_watch(watch_, bus.path().c_str(), IN_OPEN);
      EXPECT_GE(number, 0);
      folders_[number] = bus.path();
    }
  }
  ~OpenedNodes() { close(watch_); }
  OpenedNodes(const OpenedNodes &) = delete;
  OpenedNodes &operator=(const OpenedNodes &) = delete;

  std::set<std::string> Take() {
    std::set<std::string> nodes;
    alignas(inotify_event) std::array<char, 16384> buffer{};
    while (true) {
      const ssize_t got = read(watch_, buffer.data(), buffer.size());
      if (got <= 0) return nodes;
      for (ssize_t at = 0; at < got;) {
        const auto *const event =
            reinterpret_cast<const inotify_event *>(buffer.data() + at);
        if (event->len > 0) nodes.insert(folders_[event->wd] / event->name);
        at += static_cast<ssize_t>(sizeof *event + event->len);
      }
    }
  }

 private:
  int watch_;
  std::map<int, fs::path> folders_;
};

TEST_F(KernelDevices, OnlyTheNodesOfTheMixersAreOpened) {
  Plug({kSibling, kMixer, kSibling, kMixer, DeviceKind::Keyboard});
  OpenedNodes opened;
  for (const auto &rows : {SetterRows(), QueryRows()}) {
    for (const EveryRequestRow &row : rows) row.call();
  }
  EXPECT_THAT(opened.Take(),
              UnorderedElementsAre(NodeOf(KernelWorld::DeviceOf(1)),
                                   NodeOf(KernelWorld::DeviceOf(2))));
}

TEST_F(KernelDevices, CountingOpensNothing) {
  Plug({kSibling, kMixer});
  OpenedNodes opened;
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
  EXPECT_THAT(opened.Take(), IsEmpty());
}

TEST_F(KernelDevices, SuspendedDevicesStaySuspended) {
  Plug({kSibling, kMixer, kSibling});
  std::vector<std::string> others;
  for (const std::string &device : DevicesOnTheBus()) {
    if (device != KernelWorld::DeviceOf(1)) others.push_back(device);
  }
  ASSERT_EQ(others.size(), 2u);
  std::vector<std::string> activeTimes;
  for (const std::string &device : others) {
    SetAttribute(device, "power/autosuspend_delay_ms", "0");
    SetAttribute(device, "power/control", "auto");
    ASSERT_TRUE(WaitFor("the device is suspended", [&] {
      return Attribute(device, "power/runtime_status") == "suspended";
    }));
    activeTimes.push_back(Attribute(device, "power/runtime_active_time"));
  }
  for (const auto &rows : {SetterRows(), QueryRows()}) {
    for (const EveryRequestRow &row : rows) row.call();
  }
  EXPECT_FALSE(TakeLog().empty());
  for (std::size_t i = 0; i < others.size(); ++i) {
    EXPECT_EQ(Attribute(others[i], "power/runtime_status"), "suspended");
    EXPECT_EQ(Attribute(others[i], "power/runtime_active_time"),
              activeTimes[i]);
  }
}

TEST_F(KernelDevices, ASuspendedMixerResumesAndAnswers) {
  Plug({kMixer});
  const std::string device = KernelWorld::DeviceOf(1);
  SetAttribute(device, "power/autosuspend_delay_ms", "0");
  SetAttribute(device, "power/control", "auto");
  ASSERT_TRUE(WaitFor("the mixer is suspended", [&] {
    return Attribute(device, "power/runtime_status") == "suspended";
  }));
  uint32_t value = 0;
  EXPECT_EQ(ZTK_GetFirmwareVersionIndex(10, &value), 100u);
  EXPECT_EQ(value, 1078u);
}

TEST_F(KernelDevices, AMixerThatAnotherProcessHasClaimedStillAnswers) {
  Plug({kMixer});
  const int node =
      open(NodeOf(KernelWorld::DeviceOf(1)).c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_GE(node, 0);
  unsigned interface = 0;
  EXPECT_EQ(ioctl(node, USBDEVFS_CLAIMINTERFACE, &interface), 0);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
  close(node);
}

TEST_F(KernelDevices, AnUnconfiguredMixerStillAnswers) {
  Plug({kMixer});
  SetAttribute(KernelWorld::DeviceOf(1), "bConfigurationValue", "0");
  ASSERT_EQ(Attribute(KernelWorld::DeviceOf(1), "bConfigurationValue"), "");
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
}

// Runs the function as the user nobody, in a child process. Returns the exit
// status, or 128 plus the number of the signal that ended the process.
int AsNobody(const std::function<int()> &what) {
  constexpr uid_t kNobody = 65534;
  const pid_t child = fork();
  if (child == 0) {
    if (setgid(kNobody) != 0 || setuid(kNobody) != 0) _exit(99);
    _exit(what());
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

TEST_F(KernelDevices, WithoutPermissionNothingIsSentAndNothingCrashes) {
  Plug({kMixer, kMixer});
  const int status = AsNobody([]() -> int {
    uint32_t value = 77;
    if (ZTK_IsUSBConnection(10) != 103) return 1;
    if (ZTK_SetBoostLevelIndex(10, 0) != 100) return 2;
    if (ZTK_SetUSBInputAudio(10, 1, 2) != 100) return 3;
    if (ZTK_GetMixerInputSelectorStatus(10, 0, &value) != 100) return 4;
    if (ZTK_GetMixerSeratoActiveStatus(10, &value) != 100) return 5;
    if (value != 77) return 6;
    if (ZTK_GetMixerCertifyLevel(10, &value) != 100 || value != 0) return 7;
    value = 77;
    if (ZTK_GetFirmwareVersionIndex(10, &value) != 100 || value != 0) return 8;
    usb::Connection slot = nullptr;
    if (open_pipes(&slot, 0) != 0xE00002BC || slot != nullptr) return 9;
    return 0;
  });
  EXPECT_EQ(status, 0);
  EXPECT_THAT(TakeLog(), IsEmpty());
}

TEST_F(KernelDevices, AMixerWithPermissionReceivesTheValue) {
  Plug({kMixer, kMixer});
  ASSERT_EQ(chmod(NodeOf(KernelWorld::DeviceOf(2)).c_str(), 0666), 0);
  const int status = AsNobody(
      []() -> int { return ZTK_SetBoostLevelIndex(10, 0) == 100 ? 0 : 1; });
  EXPECT_EQ(status, 0);
  EXPECT_THAT(TakeLog(), ElementsAre("mixer 2: 40 03 0300 8003 0000"));
}

}  // namespace
}  // namespace ztk::test
