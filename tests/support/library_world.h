// SPDX-License-Identifier: MIT
//
// The fixture of the tests that run the shipped library, unchanged, on virtual
// mixers, with a message bus and a home of their own. The test program decides
// where the mixers are: in the sandbox, or on the bus of a real kernel.
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

// Defined for each kind of world. `log` receives the vendor requests.
std::unique_ptr<MixerWorld> MakeWorld(const std::vector<Placement> &placements,
                                      LogSink log);
// Why no world can be made here; empty when it can.
std::string WorldRefusal();

class LibraryWorld : public testing::Test {
 protected:
  void SetUp() override;

  // Builds the bus anew.
  void Plug(const std::vector<Placement> &placements);
  void PlugMixers(int count);
  MixerWorld &world() { return *world_; }

  // Request lines since the last call.
  std::vector<std::string> TakeLog();

  TempHome home_;
  PrivateBus bus_;

 private:
  std::mutex logMutex_;
  std::vector<std::string> log_;
  std::unique_ptr<MixerWorld> world_;
};

// The text of a settings file with these entries only, each "<key>...</key>"
// with its value.
std::string SettingsText(
    const std::vector<std::pair<std::string, int>> &values);

// Runs the child program with these arguments and returns its output; its exit
// status must be 0.
std::string RunChild(const std::vector<std::string> &arguments);
// The same in a root with these additional files. Returns "skip: " and the
// reason when this system does not allow that.
std::string RunChildInTemporaryRoot(const RootFiles &files,
                                    const std::vector<std::string> &arguments);

// The child program, running.
class Child : public ChildProcess {
 public:
  explicit Child(const std::vector<std::string> &arguments,
                 const std::function<std::string()> &prepare = nullptr);
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_
