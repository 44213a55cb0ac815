// SPDX-License-Identifier: MIT
#include "support/library_world.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace ztk::test {

void LibraryWorld::SetUp() {
  if (!bus_.Start()) GTEST_SKIP() << "there is no dbus-daemon";
}

void LibraryWorld::Plug(const std::vector<Placement> &placements) {
  sandbox_.reset();
  sandbox_ = std::make_unique<virtual_mixer::Sandbox>(
      placements, [this](const std::string &line) {
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
             const std::function<std::string()> &prepare) {
  int in[2];
  int out[2];
  if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0) {
    throw std::runtime_error("no pipe");
  }
  std::vector<char *> words;
  static const std::string program = ZTK_LIBRARY_CHILD;
  words.push_back(const_cast<char *>(program.c_str()));
  for (const std::string &argument : arguments) {
    words.push_back(const_cast<char *>(argument.c_str()));
  }
  words.push_back(nullptr);
  process_ = fork();
  if (process_ == 0) {
    dup2(in[0], STDIN_FILENO);
    dup2(out[1], STDOUT_FILENO);
    const std::string refusal = prepare ? prepare() : "";
    if (refusal.empty()) execv(words[0], words.data());
    dprintf(STDOUT_FILENO, "%s\n", refusal.c_str());
    _exit(refusal.empty() ? 127 : 0);
  }
  close(in[0]);
  close(out[1]);
  toChild_ = in[1];
  fromChild_ = fdopen(out[0], "r");
}

Child::~Child() {
  if (process_ > 0) Finish();
}

std::string Child::ReadLine() {
  char *line = nullptr;
  std::size_t size = 0;
  const ssize_t length = getline(&line, &size, fromChild_);
  std::string text = length > 0 ? line : "";
  free(line);
  if (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

int Child::Finish() {
  close(toChild_);
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  std::fclose(fromChild_);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

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

std::string RunChildInPlantedRoot(const Planted &files,
                                  const std::vector<std::string> &arguments) {
  Child child(arguments, [&files]() -> std::string {
    const std::string refusal = EnterPlantedRoot(files);
    return refusal.empty() ? "" : "skip: " + refusal;
  });
  return OutputOf(child);
}

}  // namespace ztk::test
