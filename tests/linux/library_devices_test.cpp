// SPDX-License-Identifier: MIT
//
// Tests with the complete library which device nodes are opened, and how.
#include <fcntl.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "ZTKFunc.h"
#include "support/library_world.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

namespace fs = std::filesystem;

class LibraryDevices : public LibraryWorld {};

// In alphabetical order, port 10 would come before port 2.
TEST_F(LibraryDevices, TwelveMixersReceiveTheValueInTheOrderOfTheirPorts) {
  PlugMixers(12);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  std::vector<std::string> expected;
  for (int mixer = 1; mixer <= 12; ++mixer) {
    expected.push_back("mixer " + std::to_string(mixer) +
                       ": 40 03 0200 8003 0000");
  }
  EXPECT_EQ(TakeLog(), expected);
}

// Returns the open file descriptors of this process for nodes of USB devices.
std::vector<int> OpenNodes() {
  std::vector<int> nodes;
  for (const auto &entry : fs::directory_iterator("/proc/self/fd")) {
    std::error_code ignored;
    const std::string target = fs::read_symlink(entry.path(), ignored);
    if (target.find("/bus/usb/") != std::string::npos) {
      nodes.push_back(std::atoi(entry.path().filename().c_str()));
    }
  }
  return nodes;
}

TEST_F(LibraryDevices, OtherProgramsDoNotInheritTheDescriptorOfAMixer) {
  PlugMixers(1);
  usb::Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  const std::vector<int> nodes = OpenNodes();
  ASSERT_EQ(nodes.size(), 1u);
  EXPECT_EQ(fcntl(nodes.front(), F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
  closeUSB(&slot);
  EXPECT_THAT(OpenNodes(), IsEmpty());
}

// This happens if the mixer is unplugged and another device gets its number.
TEST_F(LibraryDevices, AMixerIsSkippedIfItsNodeBelongsToAnotherDevice) {
  PlugMixers(1);
  const fs::path nodes =
      std::string(std::getenv("UMOCKDEV_DIR")) + "/dev/bus/usb";
  int changed = 0;
  for (const auto &entry : fs::recursive_directory_iterator(nodes)) {
    if (!entry.is_regular_file()) continue;
    std::fstream node(entry.path(),
                      std::ios::in | std::ios::out | std::ios::binary);
    constexpr int kProductAt = 10;
    node.seekp(kProductAt);
    node.put('\x2A');
    ++changed;
  }
  ASSERT_GT(changed, 0);
  usb::Connection slot = nullptr;
  EXPECT_NE(open_pipes(&slot, 0), 0u);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_THAT(TakeLog(), IsEmpty());
  EXPECT_THAT(OpenNodes(), IsEmpty());
}

// No request is repeated. So three mixers that do not answer delay this setter,
// which writes and reads, by six time-outs.
TEST_F(LibraryDevices, EachMixerReceivesEachRequestOnce) {
  PlugMixers(3);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 7), 100u);
  EXPECT_EQ(TakeLog().size(), 6u);
}

}  // namespace
}  // namespace ztk::test
