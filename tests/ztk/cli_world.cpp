// SPDX-License-Identifier: MIT
#include "cli_world.h"

#include <cstdlib>
#include <filesystem>

namespace ztk::test {

std::string Line(const std::string &text, std::size_t position) {
  const std::vector<std::string> lines = SplitLines(text);
  return position < lines.size() ? lines[position] : "";
}

std::string LastLine(const std::string &text) {
  const std::vector<std::string> lines = SplitLines(text);
  return lines.empty() ? "" : lines.back();
}

Json OneObject(const std::string &out) {
  EXPECT_EQ(SplitLines(out).size(), 1U) << out;
  const Json json = Json::parse(out, nullptr, false);
  EXPECT_TRUE(json.is_object()) << out;
  if (!json.is_object()) return Json::object();
  EXPECT_EQ(json.value("schema", 0), 1);
  return json;
}

CliWorld::CliWorld() {
  for (const char *name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    unsetenv(name);
  }
  setenv("LC_ALL", "C.UTF-8", 1);
  setenv("DIR", home_.path().c_str(), 1);
  std::string path = ZTK_PROGRAM_FOLDER;
  if (const char *before = std::getenv("PATH"))
    path += std::string(":") + before;
  setenv("PATH", path.c_str(), 1);
}

void CliWorld::SetUp() {
  if (!bus_.Start()) GTEST_SKIP() << "no dbus-daemon to run";
}

Result CliWorld::InTemporaryRoot(const RootFiles &files,
                                 const std::vector<std::string> &options,
                                 const std::string &script) {
  std::vector<std::string> all{"--log", (home_.path() / "requests").string()};
  all.insert(all.end(), options.begin(), options.end());
  return RunProgram(
      SandboxWords(ZTK_VIRTUAL_MIXER, all, script), home_.path(), [&files] {
        if (files.empty()) return 0;
        return EnterTemporaryRoot(files).empty() ? 0 : kNoTemporaryRoot;
      });
}

Result CliWorld::Inside(const std::vector<std::string> &options,
                        const std::string &script) {
  return InTemporaryRoot({}, options, script);
}

std::vector<std::string> CliWorld::Requests() const {
  return Lines("requests");
}

std::vector<std::string> CliWorld::Writes() const {
  std::vector<std::string> writes;
  for (const std::string &line : Requests()) {
    if (line.find(": 40 03 ") != std::string::npos) writes.push_back(line);
  }
  return writes;
}

std::string CliWorld::File(const std::string &name) const {
  return ReadAll(home_.path() / name);
}

std::vector<std::string> CliWorld::Lines(const std::string &name) const {
  return SplitLines(File(name));
}

void CliWorld::Remember(
    const std::string &model,
    const std::vector<std::pair<std::string, int>> &values) {
  std::string text = "<plist version=\"1.0\"><dict>";
  for (const auto &[key, value] : values) {
    text += "<key>" + key + "</key><integer>" + std::to_string(value) +
            "</integer>";
  }
  WriteAll(home_.SettingsFile(model), text + "</dict></plist>");
}

bool CliWorld::HasSettings(const std::string &model) const {
  return std::filesystem::exists(home_.SettingsFile(model));
}

}  // namespace ztk::test
