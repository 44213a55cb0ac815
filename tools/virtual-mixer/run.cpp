// SPDX-License-Identifier: MIT
#include "run.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>

#include "command_runner.h"
#include "control_commands.h"
#include "control_socket.h"
#include "sandbox.h"

namespace ztk::virtual_mixer {
namespace {

constexpr char kPreloaded[] = "libumockdev-preload.so.0";

std::string Variable(const char *name) {
  const char *const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

// Lets the sandbox live in /tmp while TMPDIR is too long for it.
class ShortTempDir {
 public:
  ShortTempDir() : before_(Variable("TMPDIR")) {
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

std::unique_ptr<Sandbox> MakeSandbox(const RunOptions &options,
                                     Sandbox::LogSink log) {
  const ShortTempDir shortened;
  return std::make_unique<Sandbox>(
      SpreadDevices(options.mixers, options.otherDevices, options.buses),
      std::move(log));
}

// "2:1=3" is for mixer 2, "1=3" for all. The part before the colon is a number
// only there: faults begin with a letter, channels and registers end with '='.
std::string WithMixerFirst(const std::string &text) {
  const std::size_t digits = text.find_first_not_of("0123456789");
  if (digits == 0 || digits == std::string::npos || text[digits] != ':') {
    return "all " + text;
  }
  return text.substr(0, digits) + " " + text.substr(digits + 1);
}

void Prepare(Sandbox *sandbox, const char *option, const std::string &text,
             const std::string &line) {
  const std::string answer = RunControlCommand(sandbox, line);
  if (answer == "ok") return;
  throw UsageError(std::string(option) + " " + text + ": " +
                   answer.substr(answer.find(' ') + 1));
}

void PrepareAssignment(Sandbox *sandbox, const char *option,
                       const char *command, const std::string &text,
                       const char *form) {
  std::string words = WithMixerFirst(text);
  const std::size_t equals = words.find('=');
  if (equals == std::string::npos ||
      text.find_first_of(" \t\n") != std::string::npos) {
    throw UsageError(std::string(option) + " " + text + ": the form is " +
                     form);
  }
  words[equals] = ' ';
  Prepare(sandbox, option, text, std::string(command) + " " + words);
}

void PrepareAll(Sandbox *sandbox, const RunOptions &options) {
  for (const std::string &text : options.selectors) {
    PrepareAssignment(sandbox, "--selector", "turn", text,
                      "[MIXER:]CHANNEL=POSITION, as 1=3 or 2:1=3");
  }
  for (const std::string &text : options.replies) {
    PrepareAssignment(sandbox, "--reply", "reply", text,
                      "[MIXER:]REGISTER=HEX, as 8004=0100");
  }
  for (const std::string &text : options.faults) {
    Prepare(sandbox, "--fault", text, "fault " + WithMixerFirst(text));
  }
  for (const std::string &text : options.forbidden) {
    Prepare(sandbox, "--forbid", text, "forbid " + text);
  }
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
  const std::string before = Variable("LD_PRELOAD");
  if (before.find("libasan") != std::string::npos) {
    return before + ":" + kPreloaded;
  }
  const std::string sanitizer = OwnSanitizer();
  std::string list = sanitizer.empty() ? "" : sanitizer + ":";
  list += kPreloaded;
  if (!before.empty()) list += ":" + before;
  return list;
}

// So that this program and its neighbours are found from a build folder too.
void AddOwnFolderToPath() {
  std::error_code failure;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", failure);
  if (failure) return;
  const std::string folder = self.parent_path();
  const std::string path = Variable("PATH");
  if ((":" + path + ":").find(":" + folder + ":") != std::string::npos) return;
  setenv("PATH", (path.empty() ? folder : path + ":" + folder).c_str(), 1);
}

std::vector<std::string> CommandEnvironment(const std::string &controlPath) {
  const std::string preload = std::string("LD_PRELOAD=");
  std::vector<std::string> environment{
      preload + PreloadList(),
      std::string(kControlVariable) + "=" + controlPath};
  for (char **variable = environ; *variable != nullptr; ++variable) {
    const std::string text = *variable;
    if (text.compare(0, preload.size(), preload) != 0) {
      environment.push_back(text);
    }
  }
  return environment;
}

Descriptor OpenLog(const std::string &file) {
  if (file.empty()) return Descriptor();
  Descriptor opened(open(
      file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666));
  if (opened.Get() < 0) {
    throw std::runtime_error("cannot write the log " + file + ": " +
                             std::strerror(errno));
  }
  return opened;
}

// Whole lines, at once: who reads the file after a request finds it there.
void WriteLine(int descriptor, std::string line) {
  line += '\n';
  std::string_view rest = line;
  while (!rest.empty()) {
    const ssize_t written = write(descriptor, rest.data(), rest.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return;
    rest.remove_prefix(static_cast<std::size_t>(written));
  }
}

// A program that has closed its standard streams gives their numbers to
// umockdev's sockets and then writes its messages there. For this program and
// what it starts, at least, that is kept from happening.
void FillStandardStreams() {
  for (int number = 0; number <= STDERR_FILENO; ++number) {
    if (fcntl(number, F_GETFD) >= 0) continue;
    // The lowest free number is this one.
    if (open("/dev/null", O_RDWR) != number) return;
  }
}

// Who takes the sandbox down: the main thread at the end, or the handler of an
// abort. Whoever comes second waits for the end of the process.
enum class TakenDown { No, AtTheEnd, ByAbort };
std::atomic<TakenDown> takenDown{TakenDown::No};
std::string folderToRemove;

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
  std::filesystem::remove_all(folderToRemove, ignored);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

// umockdev aborts on what it does not understand, on a thread of its own and
// at any time. The folder goes even then. To be made after the sandbox.
class AbortGuard {
 public:
  explicit AbortGuard(const Sandbox &sandbox) {
    folderToRemove = sandbox.RootDir();
    std::signal(SIGABRT, OnAbort);
  }
  ~AbortGuard() {
    if (!TakeDownFirst(TakenDown::AtTheEnd)) WaitForTheEnd();
  }
  AbortGuard(const AbortGuard &) = delete;
  AbortGuard &operator=(const AbortGuard &) = delete;
};

std::vector<std::string> CommandOrShell(const RunOptions &options) {
  if (!options.command.empty()) return options.command;
  const std::string shell = Variable("SHELL");
  std::printf(
      "A shell with %d virtual mixer%s. Try:\n"
      "  ztk status                      what the mixer says\n"
      "  ztk input set 1 mic             change a setting\n"
      "  ztk-virtual-mixer turn 1 3      turn the selector of channel 1\n"
      "  exit                            back to the real devices\n",
      options.mixers, options.mixers == 1 ? "" : "s");
  std::fflush(stdout);
  return {shell.empty() ? "/bin/sh" : shell};
}

}  // namespace

int Run(const RunOptions &options) {
  if (!Variable(kControlVariable).empty()) {
    throw std::runtime_error(
        "already inside a sandbox; leave it first, or use plug and unplug");
  }
  FillStandardStreams();
  const SignalGuard signals;
  const Descriptor log = OpenLog(options.logFile);
  Sandbox::LogSink sink;
  if (log.Get() >= 0) {
    sink = [&log](const std::string &line) { WriteLine(log.Get(), line); };
  }
  const std::unique_ptr<Sandbox> sandbox = MakeSandbox(options, sink);
  const AbortGuard guard(*sandbox);
  PrepareAll(sandbox.get(), options);
  const std::string controlPath = sandbox->RootDir() + "/control";
  const ControlServer control(controlPath, [&sandbox](std::string_view line) {
    return RunControlCommand(sandbox.get(), line);
  });
  AddOwnFolderToPath();
  std::string error;
  const int status =
      RunCommand(CommandOrShell(options), CommandEnvironment(controlPath),
                 signals, &error);
  if (!error.empty()) {
    std::fprintf(stderr, "ztk-virtual-mixer: %s\n", error.c_str());
  }
  return status;
}

}  // namespace ztk::virtual_mixer
