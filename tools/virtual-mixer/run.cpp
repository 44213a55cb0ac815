// SPDX-License-Identifier: MIT
#include "virtual-mixer/run.h"

#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>

#include "cli/strings.h"
#include "virtual-mixer/command_runner.h"
#include "virtual-mixer/control/control_commands.h"
#include "virtual-mixer/control/control_socket.h"
#include "virtual-mixer/sandbox/private_settings.h"
#include "virtual-mixer/sandbox/sandbox.h"

namespace ztk::virtual_mixer {
namespace {

constexpr char kPreloaded[] = "libumockdev-preload.so.0";

// Makes the sandbox use /tmp when the path in TMPDIR is too long for it.
class ShortTempDir {
 public:
  ShortTempDir() : before_(cli::Variable("TMPDIR")) {
    tooLong_ = before_.size() > Sandbox::kLongestTempDir;
    if (tooLong_) setenv("TMPDIR", "/tmp", 1);
  }
  ~ShortTempDir() {
    if (tooLong_) setenv("TMPDIR", before_.c_str(), 1);
  }
  ShortTempDir(const ShortTempDir &) = delete;
  ShortTempDir &operator=(const ShortTempDir &) = delete;

 private:
  const std::string before_;
  bool tooLong_ = false;
};

std::unique_ptr<Sandbox> MakeSandbox(const WorldOptions &options, LogSink log) {
  const ShortTempDir shortened;
  return std::make_unique<Sandbox>(PlacementsFor(options), std::move(log));
}

// The address sanitizer must come before every other library, or the programs
// that need it refuse to start. Empty where this program has none.
std::string OwnSanitizer() {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    const std::size_t path = line.find('/');
    if (path == std::string::npos) continue;
    if (line.find("/libasan.so", path) != std::string::npos) {
      return line.substr(path);
    }
  }
  return "";
}

std::string PreloadList() {
  const std::string before = cli::Variable("LD_PRELOAD");
  if (before.find("libasan") != std::string::npos) {
    return before + ":" + kPreloaded;
  }
  const std::string sanitizer = OwnSanitizer();
  std::string list = sanitizer.empty() ? "" : sanitizer + ":";
  list += kPreloaded;
  if (!before.empty()) list += ":" + before;
  return list;
}

// Which thread removes the sandbox: the main thread at the end, or the thread
// that aborts. The other one waits for the end of the process.
enum class TakenDown { No, AtTheEnd, ByAbort };
std::atomic<TakenDown> takenDown{TakenDown::No};
std::vector<std::string> foldersToRemove;

bool TakeDownFirst(TakenDown by) {
  TakenDown expected = TakenDown::No;
  return takenDown.compare_exchange_strong(expected, by);
}

[[noreturn]] void WaitForTheEnd() {
  while (true) pause();
}

void OnAbort(int signal) {
  if (!TakeDownFirst(TakenDown::ByAbort)) WaitForTheEnd();
  std::error_code ignored;
  for (const std::string &folder : foldersToRemove) {
    std::filesystem::remove_all(folder, ignored);
  }
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

// umockdev aborts the process when it receives data that it does not
// understand, on a thread of its own and at any time. This object removes the
// folders even then. It has to be made after the owners of the folders.
class AbortGuard {
 public:
  explicit AbortGuard(std::vector<std::string> folders) {
    foldersToRemove = std::move(folders);
    std::signal(SIGABRT, OnAbort);
  }
  ~AbortGuard() {
    if (!TakeDownFirst(TakenDown::AtTheEnd)) WaitForTheEnd();
  }
  AbortGuard(const AbortGuard &) = delete;
  AbortGuard &operator=(const AbortGuard &) = delete;
};

// No line is longer than 40 columns, the narrowest terminal there is.
void Greet(int mixers, bool privateSettings) {
  std::printf(
      "A shell with %d virtual mixer%s. Try:\n"
      "  ztk status            ask the mixer\n"
      "  ztk input set 1 mic   change a setting\n"
      "  ztk-virtual-mixer turn 1 3\n"
      "                        turn a selector\n"
      "  exit                  leave the mixers\n"
      "%s",
      mixers, mixers == 1 ? "" : "s",
      privateSettings ? "What you set is gone when you exit.\n"
                      : "What you set changes your own settings;\n"
                        "run --private-settings keeps them apart.\n");
  std::fflush(stdout);
}

std::vector<std::string> CommandOrShell(const RunOptions &options, int mixers) {
  if (!options.command.empty()) return options.command;
  Greet(mixers, options.privateSettings);
  const std::string shell = cli::Variable("SHELL");
  return {shell.empty() ? "/bin/sh" : shell};
}

}  // namespace

int Run(const RunOptions &options) {
  if (!cli::Variable(kControlVariable).empty()) {
    throw std::runtime_error(
        "already inside a sandbox; leave it first, or use plug and unplug");
  }
  FillStandardStreams();
  RemoveAbandonedFolders(TemporaryParent());
  RemoveAbandonedFolders(TemporaryParent(Sandbox::kLongestTempDir));
  const SignalGuard signals;
  const LogFile log(options.world.logFile);
  const std::unique_ptr<Sandbox> sandbox =
      MakeSandbox(options.world, log.Sink());
  std::optional<PrivateSettings> settings;
  if (options.privateSettings) settings.emplace();
  const AbortGuard guard(
      {sandbox->RootDir(), settings ? settings->Folder() : ""});
  Prepare(sandbox.get(), options.world);
  const std::string controlPath = sandbox->RootDir() + "/control";
  const ControlServer control(controlPath, [&sandbox](std::string_view line) {
    return RunControlCommand(sandbox.get(), line);
  });
  AddOwnFolderToPath();
  std::vector<std::string> variables;
  if (settings) variables = settings->Environment();
  variables.push_back("LD_PRELOAD=" + PreloadList());
  variables.push_back(std::string(kControlVariable) + "=" + controlPath);
  std::string error;
  const int status = RunCommand(CommandOrShell(options, sandbox->MixerCount()),
                                EnvironmentWith(variables), signals, &error);
  if (!error.empty()) {
    std::fprintf(stderr, "ztk-virtual-mixer: %s\n", error.c_str());
  }
  return status;
}

}  // namespace ztk::virtual_mixer
