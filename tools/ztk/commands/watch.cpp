// SPDX-License-Identifier: MIT
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <optional>

#include "cli/terminal.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/mixers/plugged_mixers.h"
#include "ztk/model/products.h"
#include "ztk/model/settings.h"
#include "ztk/output.h"
#include "ztk/report/setting_report.h"
#include "ztk/system/event_loop.h"

namespace ztk::program {

namespace {

struct Watcher {
  bool json = false;
  bool quiet = false;
  int writeError = 0;
  bool hasBus = true;
  PluggedMixers mixers = {};
};
Watcher *theWatcher = nullptr;

// Ends ztk watch, because the output cannot be written any more. `error` is
// EPIPE if the program that reads the output has ended.
void EndWith(int error) {
  theWatcher->writeError = error;
  StopLoop();
}

std::string PluggingLine(const Plugging &plugging) {
  const std::size_t count = theWatcher->mixers.count();
  if (!theWatcher->json) {
    return "Mixer at port " + plugging.place +
           (plugging.attached ? ": plugged in, " : ": gone, ") +
           std::to_string(count) +
           (count == 1 ? " mixer is attached\n" : " mixers are attached\n");
  }
  Report report;
  report.fields["event"] = plugging.attached ? "attached" : "gone";
  report.fields["port"] = plugging.place;
  report.fields["found"] = count;
  // A program that reads changes finds the fields that it expects. The values
  // are null, because no setting has changed.
  for (const char *name :
       {"setting", "model", "channel", "number", "text", "value"}) {
    report.fields[name] = nullptr;
  }
  return JsonLine("watch", report) + "\n";
}

// Whether the program that reads the output has ended. A write would show this
// too, but there may be nothing to write for a long time.
bool OutputIsClosed() {
  pollfd output{.fd = STDOUT_FILENO, .events = 0, .revents = 0};
  return poll(&output, 1, 0) > 0 && (output.revents & POLLERR) != 0;
}

void LookAtMixers() {
  for (const Plugging &plugging : theWatcher->mixers.Look()) {
    if (!WriteOutput(PluggingLine(plugging))) return EndWith(errno);
  }
  if (OutputIsClosed()) EndWith(EPIPE);
}

// One for each setting: the context of its callback.
struct Listener {
  Watcher *watcher;
  const Setting *setting;
};

// Any program can announce a change, with any channel and any number.
std::string ChangeLine(const Listener &listener, std::int32_t channel,
                       std::int32_t index) {
  const Setting &setting = *listener.setting;
  const auto row = static_cast<std::uint32_t>(channel);
  const auto value = static_cast<std::uint32_t>(index);
  const bool known = row < ChannelsToWalk(setting);
  if (!listener.watcher->json) {
    const std::string place = known ? PlaceName(setting, row)
                                    : std::string(setting.place) +
                                          " (unknown channel " +
                                          std::to_string(channel) + ")";
    return place + ": " +
           (known ? DescribedValue(setting, row, value)
                  : std::to_string(index)) +
           "\n";
  }
  Report report;
  report.fields["setting"] = setting.name;
  report.fields["model"] = ModelName(setting);
  if (known) {
    AddValueFields(setting, row, value, &report.fields);
  } else {
    report.fields.update(Json{{"channel", std::int64_t{channel} + 1},
                              {"number", nullptr},
                              {"text", nullptr},
                              {"value", index}});
  }
  return JsonLine("watch", report) + "\n";
}

// Called by the library: no exception may leave this function.
void OnChange(std::int32_t channel, std::int32_t index,
              void *context) noexcept {
  const auto *listener = static_cast<const Listener *>(context);
  if (!WriteOutput(ChangeLine(*listener, channel, index))) EndWith(errno);
}

void OnIndexChange(std::int32_t index, void *context) noexcept {
  OnChange(0, index, context);
}

void SayReady(bool hasBus) {
  theWatcher->hasBus = hasBus;
  if (!hasBus) {
    WriteError(
        "warning: changes of settings are not shown, because there is no "
        "session message bus");
  }
  if (theWatcher->quiet) return;
  WriteError(hasBus ? "watching for changes; Ctrl-C ends"
                    : "watching for mixers that come and go; Ctrl-C ends");
}

// Why ztk watch ended; nothing after Ctrl-C, or when the reader has ended.
std::optional<Problem> ProblemAtEnd(LoopEnd end, int writeError, bool hasBus) {
  const auto failed = [](const std::string &message) {
    return Problem{.exit = ExitCode::Failed, .message = message};
  };
  switch (end) {
    case LoopEnd::Interrupted:
      if (hasBus) return {};
      return failed(
          "changes of settings were not shown, because there is no session "
          "message bus; run ztk watch inside your login session");
    case LoopEnd::NoBus:
      return failed(
          "the session message bus has ended, so changes of settings are not "
          "received any more; log in again");
    case LoopEnd::NoLibrary:
      return failed(
          "a library that receives changes cannot be loaded; ztk doctor "
          "names it");
    case LoopEnd::Stopped:
      if (writeError == EPIPE) return {};
      return failed(std::string("cannot write the output: ") +
                    std::strerror(writeError));
  }
  return {};
}

}  // namespace

Report Watch(const Arguments &arguments) {
  Watcher watcher{.json = arguments.Has(Parameter::kJson),
                  .quiet = arguments.Has(Parameter::kQuiet)};
  theWatcher = &watcher;
  Listener input{.watcher = &watcher, .setting = &kInput};
  Listener output{.watcher = &watcher, .setting = &kOutput};
  Listener boost{.watcher = &watcher, .setting = &kBoost};
  Listener midi{.watcher = &watcher, .setting = &kMidi};
  ZTK_RegisterInputAudioChangedCallback(kInput.product, OnChange, &input);
  ListenToOutputAudio(OnChange, &output);
  ZTK_RegisterBoostLevelChangedCallback(kBoost.product, OnIndexChange, &boost);
  ZTK_RegisterMidiChannelChangedCallback(kMidi.product, OnIndexChange, &midi);

  const LoopEnd end = RunLoop(SayReady, LookAtMixers);
  Report report;
  report.written = true;
  if (end == LoopEnd::Interrupted && cli::IsTerminal(STDERR_FILENO)) {
    // After the "^C" that the terminal shows.
    WriteLineEnd();
  }
  report.problem = ProblemAtEnd(end, watcher.writeError, watcher.hasBus);
  return report;
}

}  // namespace ztk::program
