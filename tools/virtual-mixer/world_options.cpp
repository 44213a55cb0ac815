// SPDX-License-Identifier: MIT
#include "virtual-mixer/world_options.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <string_view>
#include <utility>

#include "cli/strings.h"
#include "cli/terminal.h"
#include "virtual-mixer/control/control_commands.h"

namespace ztk::virtual_mixer {
namespace {

// "2:1=3" is for mixer 2, "1=3" for all. The part before the colon is a number
// only there: faults begin with a letter, channels and registers end with '='.
std::string WithMixerFirst(const std::string &text) {
  const std::size_t digits = text.find_first_not_of("0123456789");
  if (digits == 0 || digits == std::string::npos || text[digits] != ':') {
    return "all " + text;
  }
  return text.substr(0, digits) + " " + text.substr(digits + 1);
}

void PrepareOne(MixerWorld *world, const char *option, const std::string &text,
                const std::string &line) {
  const std::string answer = RunControlCommand(world, line);
  if (answer.starts_with("ok ")) return;
  throw UsageError(std::string(option) + " " + text + ": " +
                   answer.substr(answer.find(' ') + 1));
}

void PrepareAssignment(MixerWorld *world, const char *option,
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
  PrepareOne(world, option, text, std::string(command) + " " + words);
}

// Writes a whole line with one call: a program that reads the file after its
// request finds the line there.
void WriteLine(int file, const std::string &line) {
  platform::WriteAll(line + '\n', [file](const char *data, std::size_t size) {
    return write(file, data, size);
  });
}

// Names the mixers that the report has and that are not replayed.
RecordedMixers RecordedIn(const WorldOptions &options) {
  try {
    RecordedMixers recorded = ReadReport(options.reportFile, options.delays);
    for (const std::size_t number : recorded.leftOut) {
      std::cerr << cli::MessageLine(
          "ztk-virtual-mixer",
          "warning: mixer " + std::to_string(number) +
              " of the report could not be opened when the report was made; "
              "it is left out");
    }
    return recorded;
  } catch (const std::exception &error) {
    throw UsageError(error.what());
  }
}

// "NAME=" of "NAME=value".
std::string_view NameOf(std::string_view variable) {
  return variable.substr(0, variable.find('=') + 1);
}

}  // namespace

std::vector<Placement> PlacementsFor(const WorldOptions &options) {
  if (options.reportFile.empty()) {
    return SpreadDevices(options.mixers, options.otherDevices, options.buses);
  }
  std::vector<RecordedMixer> recorded = RecordedIn(options).mixers;
  std::vector<Placement> placements = SpreadDevices(
      static_cast<int>(recorded.size()), options.otherDevices, options.buses);
  std::size_t next = 0;
  for (Placement &placement : placements) {
    if (placement.kind != DeviceKind::Mixer) continue;
    placement.recorded =
        std::make_shared<const RecordedMixer>(std::move(recorded[next++]));
  }
  return placements;
}

void Prepare(MixerWorld *world, const WorldOptions &options) {
  for (const std::string &text : options.selectors) {
    PrepareAssignment(world, "--selector", "turn", text,
                      "[MIXER:]CHANNEL=POSITION, as 1=3 or 2:1=3");
  }
  for (const std::string &text : options.replies) {
    PrepareAssignment(world, "--reply", "reply", text,
                      "[MIXER:]REGISTER=HEX, as 8004=0100");
  }
  for (const std::string &text : options.faults) {
    PrepareOne(world, "--fault", text, "fault " + WithMixerFirst(text));
  }
  for (const std::string &text : options.forbidden) {
    PrepareOne(world, "--forbid", text, "forbid " + text);
  }
}

LogFile::LogFile(const std::string &name) {
  if (name.empty()) return;
  file_ = platform::FileDescriptor(open(
      name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666));
  if (file_.get() < 0) {
    throw std::runtime_error("cannot write the log " + name + ": " +
                             std::strerror(errno));
  }
}

LogSink LogFile::Sink() const {
  if (file_.get() < 0) return nullptr;
  return
      [file = file_.get()](const std::string &line) { WriteLine(file, line); };
}

void FillStandardStreams() {
  for (int number = 0; number <= STDERR_FILENO; ++number) {
    if (fcntl(number, F_GETFD) >= 0) continue;
    // The lowest free number is this one.
    if (open("/dev/null", O_RDWR) != number) return;
  }
}

void AddOwnFolderToPath() {
  std::error_code failure;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", failure);
  if (failure) return;
  const std::string folder = self.parent_path();
  const std::string path = cli::Variable("PATH");
  if ((":" + path + ":").find(":" + folder + ":") != std::string::npos) return;
  setenv("PATH", (path.empty() ? folder : path + ":" + folder).c_str(), 1);
}

std::vector<std::string> EnvironmentWith(std::vector<std::string> variables) {
  const auto own = static_cast<std::ptrdiff_t>(variables.size());
  for (char **variable = environ; *variable != nullptr; ++variable) {
    const bool replaced =
        std::any_of(variables.begin(), variables.begin() + own,
                    [&](const std::string &other) {
                      return NameOf(other) == NameOf(*variable);
                    });
    if (!replaced) variables.emplace_back(*variable);
  }
  return variables;
}

}  // namespace ztk::virtual_mixer
