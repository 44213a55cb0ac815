// SPDX-License-Identifier: MIT
//
// The sandbox in the process that uses it. The test environment preloads
// umockdev's library.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "virtual-mixer/sandbox/sandbox.h"

namespace ztk::virtual_mixer {
namespace {

using ::testing::ElementsAre;

class InProcess : public testing::Test {
 protected:
  void SetUp() override {
    const char *const preloaded = std::getenv("LD_PRELOAD");
    if (preloaded == nullptr ||
        std::strstr(preloaded, "libumockdev-preload") == nullptr) {
      GTEST_SKIP() << "LD_PRELOAD has no libumockdev-preload.so.0";
    }
  }
};

// Positions that a node's device reports, or the error number, negative.
std::vector<int> Selectors(const char *node) {
  const int opened = open(node, O_RDWR | O_CLOEXEC);
  if (opened < 0) return {-errno};
  std::array<std::uint8_t, 5> buffer{};
  usbdevfs_ctrltransfer transfer{};
  transfer.bRequestType = 0xC0;
  transfer.wIndex = 0x8002;
  transfer.wLength = 5;
  transfer.timeout = 1000;
  transfer.data = buffer.data();
  const int result = ioctl(opened, USBDEVFS_CONTROL, &transfer);
  const int failure = errno;
  close(opened);
  if (result < 0) return {-failure};
  return {buffer.begin(), buffer.begin() + result};
}

TEST_F(InProcess, AnswersItsOwner) {
  std::vector<std::string> log;
  Sandbox sandbox(SpreadDevices(2, 2, 1),
                  [&](const std::string &line) { log.push_back(line); });
  EXPECT_EQ(sandbox.MixerCount(), 2);
  EXPECT_EQ(sandbox.OtherCount(), 2);
  const std::string node = sandbox.Status(2).address.Node();
  EXPECT_EQ(node, "/dev/bus/usb/001/004");

  sandbox.WithMixer(2, [](MixerModel &mixer) { mixer.TurnSelector(0, 1); });
  EXPECT_THAT(Selectors(node.c_str()), ElementsAre(0, 1, 4, 4, 4));
  // The other device before the mixers knows no such request.
  EXPECT_THAT(Selectors("/dev/bus/usb/001/002"), ElementsAre(-EPIPE));
  EXPECT_THAT(log,
              ElementsAre("mixer 2: c0 00 0000 8002 0005 -> 00 01 04 04 04"));
}

TEST_F(InProcess, UnplugsAndForbids) {
  Sandbox sandbox(SpreadDevices(1, 0, 1));
  const char kNode[] = "/dev/bus/usb/001/002";
  sandbox.Unplug(1);
  EXPECT_FALSE(sandbox.Status(1).pluggedIn);
  EXPECT_THAT(Selectors(kNode), ElementsAre(-ENOENT));
  sandbox.SetForbidden(1, true);
  sandbox.PlugIn(1);
  EXPECT_THAT(Selectors(kNode), ElementsAre(-EACCES));
  sandbox.SetForbidden(1, false);
  EXPECT_THAT(Selectors(kNode), ElementsAre(0, 4, 4, 4, 4));
}

TEST_F(InProcess, CanBeMadeAgainAndLeavesNothing) {
  for (int round = 0; round < 3; ++round) {
    std::string folder;
    {
      Sandbox sandbox(SpreadDevices(1, 0, 1));
      folder = sandbox.RootDir();
      EXPECT_THAT(Selectors("/dev/bus/usb/001/002"),
                  ElementsAre(0, 4, 4, 4, 4));
    }
    EXPECT_FALSE(std::filesystem::exists(folder));
  }
}

TEST_F(InProcess, RefusesATemporaryFolderWithALongName) {
  const char *const before = std::getenv("TMPDIR");
  const std::string kept = before == nullptr ? "/tmp" : before;
  setenv("TMPDIR", ("/tmp/" + std::string(60, 'x')).c_str(), 1);
  EXPECT_THROW(Sandbox{SpreadDevices(1, 0, 1)}, std::runtime_error);
  setenv("TMPDIR", kept.c_str(), 1);
}

}  // namespace
}  // namespace ztk::virtual_mixer
