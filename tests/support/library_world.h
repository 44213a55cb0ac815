// SPDX-License-Identifier: MIT
//
// The fixture of the tests that run the complete shared library with virtual
// mixers. Each test has its own message bus and home folder. The test program
// decides where the mixers are: in the sandbox, or on the USB bus of a real
// kernel.
#ifndef ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_
#define ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "support/child.h"
#include "support/private_bus.h"
#include "support/temp_home.h"
#include "support/temporary_root.h"
#include "virtual-mixer/mixer/mixer_world.h"

namespace ztk::test {

using testing::ElementsAre;
using testing::IsEmpty;
using virtual_mixer::DeviceKind;
using virtual_mixer::Placement;

using virtual_mixer::LogSink;
using virtual_mixer::MixerWorld;

// Each test program links one definition of MakeWorld() and WhyNoWorld(). `log`
// receives the vendor requests.
std::unique_ptr<MixerWorld> MakeWorld(const std::vector<Placement> &placements,
                                      LogSink log);
// Returns the reason why no world can be made on this machine, or an empty
// text.
std::string WhyNoWorld();

class LibraryWorld : public testing::Test {
 protected:
  void SetUp() override;

  // Replaces the world by one with these devices.
  void Plug(const std::vector<Placement> &placements);
  void PlugMixers(int count);
  MixerWorld &world() { return *world_; }

  // Returns the request lines since the last call of this function.
  std::vector<std::string> TakeLog();

  TempHome home_;
  PrivateBus bus_;

 private:
  std::mutex logMutex_;
  std::vector<std::string> log_;
  std::unique_ptr<MixerWorld> world_;
};

// Returns the text of a settings file that has only these entries.
std::string SettingsText(
    const std::vector<std::pair<std::string, int>> &values);

// Runs the child program with these arguments and returns its output. The test
// fails if the exit status is not 0.
std::string RunChild(const std::vector<std::string> &arguments);
// Does the same in a root with these additional files. Returns "skip: " and the
// reason if this system does not allow such a root.
std::string RunChildInTemporaryRoot(const RootFiles &files,
                                    const std::vector<std::string> &arguments);

// A running child program.
class Child : public ChildProcess {
 public:
  explicit Child(const std::vector<std::string> &arguments,
                 const std::function<std::string()> &prepare = nullptr);
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_
