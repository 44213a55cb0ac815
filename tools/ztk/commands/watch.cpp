// SPDX-License-Identifier: MIT
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "cli/terminal.h"
#include "ztk/commands/other_commands.h"
#include "ztk/model/plugged_mixers.h"
#include "ztk/model/products.h"
#include "ztk/model/settings.h"
#include "ztk/output.h"
#include "ztk/report/setting_report.h"
#include "ztk/system/event_loop.h"

namespace ztk::program {

namespace {

struct Watcher {
  bool json = false;
  int writeError = 0;
  PluggedMixers mixers;
};
Watcher *theWatcher = nullptr;

// Nobody reads the other end of the pipe any more.
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
  // A reader of changes finds that none of its settings has changed.
  for (const char *name :
       {"setting", "model", "channel", "number", "text", "value"}) {
    report.fields[name] = nullptr;
  }
  return JsonLine("watch", report) + "\n";
}

// A closed pipe is only noticed when something is written; here it is asked
// for.
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

// A change may come from any program and hold any number.
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

// Called by the library, through which no exception may pass.
void OnChange(std::int32_t channel, std::int32_t index,
              void *context) noexcept {
  const auto *listener = static_cast<const Listener *>(context);
  if (!WriteOutput(ChangeLine(*listener, channel, index))) EndWith(errno);
}

void OnIndexChange(std::int32_t index, void *context) noexcept {
  OnChange(0, index, context);
}

void SayReady() { WriteError("watching for changes; Ctrl-C ends"); }

}  // namespace

Report Watch(const Arguments &arguments) {
  if (arguments.Has(Parameter::kQuiet)) {
    throw Failure(ExitCode::Usage,
                  "--quiet would hide the changes that ztk watch shows; leave "
                  "it out");
  }
  Watcher watcher{
      .json = arguments.Has(Parameter::kJson), .writeError = 0, .mixers = {}};
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
    // Behind the "^C" that the terminal shows.
    WriteLineEnd();
  }
  if (end == LoopEnd::NoBus) {
    report.problem = {
        .exit = ExitCode::Failed,
        .message =
            "there is no session message bus to hear changes on, or it "
            "is gone; run this inside your login session"};
  } else if (end == LoopEnd::NoLibrary) {
    report.problem = {.exit = ExitCode::Failed,
                      .message =
                          "a library that hears changes cannot be "
                          "loaded; ztk doctor tells which"};
  } else if (end == LoopEnd::Stopped && watcher.writeError != EPIPE) {
    report.problem = {.exit = ExitCode::Failed,
                      .message = std::string("cannot write the output: ") +
                                 std::strerror(watcher.writeError)};
  }
  return report;
}

}  // namespace ztk::program
