// SPDX-License-Identifier: MIT
//
// The fixture of the tests that run the shipped library, unchanged, on virtual
// mixers in the sandbox, with a message bus and a home of their own.
#ifndef ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_
#define ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "support/planted_root.h"
#include "support/private_bus.h"
#include "support/temp_home.h"
#include "virtual-mixer/sandbox.h"

namespace ztk::test {

using testing::ElementsAre;
using testing::IsEmpty;
using virtual_mixer::DeviceKind;
using virtual_mixer::Placement;

class LibraryWorld : public testing::Test {
 protected:
  void SetUp() override;

  // Builds the bus anew.
  void Plug(const std::vector<Placement> &placements);
  void PlugMixers(int count);
  virtual_mixer::Sandbox &sandbox() { return *sandbox_; }

  // Request lines since the last call.
  std::vector<std::string> TakeLog();

  TempHome home_;
  PrivateBus bus_;

 private:
  std::mutex logMutex_;
  std::vector<std::string> log_;
  std::unique_ptr<virtual_mixer::Sandbox> sandbox_;
};

// The text of a settings file that holds these entries and no others, each
// "<key>...</key>" with its value.
std::string SettingsText(
    const std::vector<std::pair<std::string, int>> &values);

// Runs the child program with these arguments and gives back what it prints;
// its exit status must be 0.
std::string RunChild(const std::vector<std::string> &arguments);
// The same in a root where these files stand besides. "skip: " and the reason
// where this system does not allow that.
std::string RunChildInPlantedRoot(const Planted &files,
                                  const std::vector<std::string> &arguments);

// The child program, running. Reads its lines as they come.
class Child {
 public:
  // `prepare`, if any, runs in the new process before the program does; what
  // it answers is printed and ends the process, unless it is empty.
  explicit Child(const std::vector<std::string> &arguments,
                 const std::function<std::string()> &prepare = nullptr);
  ~Child();
  Child(const Child &) = delete;
  Child &operator=(const Child &) = delete;

  // The next line without its end; empty when the child has closed.
  std::string ReadLine();
  // Lets it end (its standard input closes) and answers its exit status, or
  // 128 and the signal's number.
  int Finish();

 private:
  pid_t process_ = -1;
  int toChild_ = -1;
  std::FILE *fromChild_ = nullptr;
};

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_LIBRARY_WORLD_H_
