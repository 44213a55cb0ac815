// SPDX-License-Identifier: MIT
#include "support/library_world.h"

namespace ztk::test {

void LibraryWorld::SetUp() {
  const std::string reason = WhyNoWorld();
  if (!reason.empty()) GTEST_SKIP() << reason;
  if (!bus_.Start()) GTEST_SKIP() << "there is no dbus-daemon";
}

void LibraryWorld::Plug(const std::vector<Placement> &placements) {
  world_.reset();
  world_ = MakeWorld(placements, [this](const std::string &line) {
    const std::lock_guard lock(logMutex_);
    log_.push_back(line);
  });
}

void LibraryWorld::PlugMixers(int count) {
  Plug(std::vector<Placement>(static_cast<std::size_t>(count)));
}

std::vector<std::string> LibraryWorld::TakeLog() {
  const std::lock_guard lock(logMutex_);
  return std::exchange(log_, {});
}

std::string SettingsText(
    const std::vector<std::pair<std::string, int>> &values) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
      "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
      "<plist version=\"1.0\">\n<dict>\n";
  for (const auto &[key, value] : values) {
    text += "\t<key>" + key + "</key>\n\t<integer>" + std::to_string(value) +
            "</integer>\n";
  }
  return text + "</dict>\n</plist>\n";
}

Child::Child(const std::vector<std::string> &arguments,
             const std::function<std::string()> &prepare)
    : ChildProcess(
          [&arguments] {
            std::vector<std::string> words{ZTK_LIBRARY_CHILD};
            words.insert(words.end(), arguments.begin(), arguments.end());
            return words;
          }(),
          prepare) {}

namespace {

std::string OutputOf(Child &child) {
  std::string output;
  for (std::string line = child.ReadLine(); !line.empty();
       line = child.ReadLine()) {
    output += line + "\n";
  }
  EXPECT_EQ(child.Finish(), 0);
  return output;
}

}  // namespace

std::string RunChild(const std::vector<std::string> &arguments) {
  Child child(arguments);
  return OutputOf(child);
}

std::string RunChildInTemporaryRoot(const RootFiles &files,
                                    const std::vector<std::string> &arguments) {
  Child child(arguments, [&files]() -> std::string {
    const std::string error = EnterTemporaryRoot(files);
    return error.empty() ? "" : "skip: " + error;
  });
  return OutputOf(child);
}

}  // namespace ztk::test
