// SPDX-License-Identifier: MIT
//
// A simple client of the library, which the tests start as another process. The
// first argument is the command. The program prints one line for each event.
#include <dlfcn.h>
#include <glib.h>
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

#include "ZTKFunc.h"

namespace {

int CountEntries(const char *folder) {
  int count = 0;
  for (const auto &entry : std::filesystem::directory_iterator(folder)) {
    (void)entry;
    ++count;
  }
  return count;
}

void PrintChannelChange(int32_t channel, int32_t index, void *context) {
  std::printf("%s %d %d\n", static_cast<const char *>(context), channel, index);
  std::fflush(stdout);
}

void PrintChange(int32_t index, void *context) {
  std::printf("%s %d\n", static_cast<const char *>(context), index);
  std::fflush(stdout);
}

char *Name(const char *name) { return const_cast<char *>(name); }

gboolean QuitOnEnd(GIOChannel *, GIOCondition, gpointer loop) {
  g_main_loop_quit(static_cast<GMainLoop *>(loop));
  return G_SOURCE_REMOVE;
}

// Runs the event loop until standard input ends.
void Run() {
  GMainLoop *loop = g_main_loop_new(nullptr, FALSE);
  GIOChannel *input = g_io_channel_unix_new(STDIN_FILENO);
  g_io_add_watch(input, G_IO_HUP, QuitOnEnd, loop);
  std::puts("ready");
  std::fflush(stdout);
  g_main_loop_run(loop);
  g_io_channel_unref(input);
  g_main_loop_unref(loop);
}

// Each word registers or unregisters a callback, in the given order.
int Listen(int count, char **words) {
  for (int i = 0; i < count; ++i) {
    const std::string word = words[i];
    if (word == "input") {
      ZTK_RegisterInputAudioChangedCallback(10, PrintChannelChange,
                                            Name("input"));
    } else if (word == "-input") {
      ZTK_UnregisterInputAudioChangedCallback(10, nullptr);
    } else if (word == "output") {
      ZTK_RegisterOutputAudioChangedCallback(10, PrintChannelChange,
                                             Name("output"));
    } else if (word == "boost") {
      ZTK_RegisterBoostLevelChangedCallback(10, PrintChange, Name("boost"));
    } else if (word == "midi") {
      ZTK_RegisterMidiChannelChangedCallback(1, PrintChange, Name("midi"));
    }
  }
  Run();
  return 0;
}

uint32_t Number(const char *text) {
  return static_cast<uint32_t>(std::strtoul(text, nullptr, 0));
}

// Calls every function that uses the platform.
void CallEverything() {
  uint32_t number = 0;
  ZTKTextRef text = nullptr;
  ZTK_IsUSBConnection(10);
  ZTK_SetUSBInputAudio(10, 1, 2);
  ZTK_SetUSBInputAudioDirect(10, 1, 0, 2);
  ZTK_SetCurrentUSBInputAudio(10, 1);
  ZTK_GetWarningTextForSetUSBAudioInput(10, 1, 101, 99, &text);
  ZTK_SetUSBOutputAudio(8, 1, 2);
  ZTK_SetUSBOutputAudioDefault(8, 1);
  ZTK_SetCurrentUSBOutputAudio(8, 1);
  ZTK_SetBoostLevelIndex(10, 1);
  ZTK_SetCurrentBoostLevelIndex(10);
  ZTK_SetMidiChannelIndex(1, 1);
  ZTK_SetCurrentMidiChannelIndex(1);
  ZTK_GetMixerCertifyLevel(10, &number);
  ZTK_GetFirmwareVersionIndex(10, &number);
  ZTK_GetMixerInputSelectorStatus(10, 1, &number);
  ZTK_GetMixerSeratoActiveStatus(10, &number);
  ZTK_GetPkgVersionText(10, &text);
  ZTK_GetDriverVersionText(10, &text);
  ZTK_GetUtilityVersionText(10, &text);
  ZTK_GetLibraryVersionText(10, &text);
  ZTK_RegisterInputAudioChangedCallback(10, PrintChannelChange, Name("input"));
}

int CountThreads() {
  CallEverything();
  std::printf("threads %d\n", CountEntries("/proc/self/task"));
  return 0;
}

// Changes a setting, reads it and reads two texts.
void ChangeAndRead(uint32_t round) {
  uint32_t index = 0;
  ZTKTextRef text = nullptr;
  ZTK_SetUSBInputAudio(10, round % 5, round % 7);
  ZTK_GetCurrentUSBInputAudioIndex(10, round % 5, &index);
  ZTK_GetLibraryVersionText(10, &text);
  ZTK_GetWarningTextForSetUSBAudioInput(10, 1, 101, 99, &text);
}

// Calls functions many times. Prints how many more descriptors are open then,
// and whether the memory grew by 100 bytes or more for each round.
int CountGrowth(uint32_t calls) {
  for (uint32_t i = 0; i < 100; ++i) ChangeAndRead(i);
  const int descriptors = CountEntries("/proc/self/fd");
  const auto before = mallinfo2().uordblks;
  for (uint32_t i = 0; i < calls; ++i) ChangeAndRead(i);
  const auto after = mallinfo2().uordblks;
  std::printf("descriptors %d\n", CountEntries("/proc/self/fd") - descriptors);
  const bool grew =
      after > before && after - before >= 100 * std::size_t{calls};
  std::printf("memory %s\n", grew ? "grew" : "kept");
  return 0;
}

// Loads the library, registers a callback and unloads the library. Then waits
// for notifications.
int Unload(const char *library) {
  void *handle = dlopen(library, RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) return 3;
  using Register = ZTKResult (*)(uint32_t, ZTKChannelCallback, void *);
  const auto function = reinterpret_cast<Register>(
      dlsym(handle, "ZTK_RegisterInputAudioChangedCallback"));
  if (function == nullptr) return 4;
  function(10, PrintChannelChange, Name("input"));
  dlclose(handle);
  Run();
  return 0;
}

// Posts and registers alternately. Each registration clears the pointer to the
// record of the last post without releasing the record.
int DropRecords(uint32_t times) {
  for (uint32_t i = 0; i < times; ++i) {
    ZTK_SetUSBInputAudio(10, 0, 3);
    ZTK_RegisterInputAudioChangedCallback(10, PrintChannelChange,
                                          Name("input"));
  }
  return 0;
}

void PrintText(const char *what, ZTKResult result, ZTKTextRef text) {
  std::printf("%s %u %s\n", what, result, text == nullptr ? "(null)" : text);
}

using VersionGetter = ZTKResult (*)(uint32_t, ZTKTextRef *);

int Versions(uint32_t product) {
  const struct {
    const char *what;
    VersionGetter getter;
  } rows[] = {{"pkg", ZTK_GetPkgVersionText},
              {"driver", ZTK_GetDriverVersionText},
              {"utility", ZTK_GetUtilityVersionText},
              {"library", ZTK_GetLibraryVersionText}};
  for (const auto &row : rows) {
    ZTKTextRef text = "untouched";
    const ZTKResult result = row.getter(product, &text);
    PrintText(row.what, result, text);
  }
  return 0;
}

int Warning(uint32_t channel, uint32_t resultCode, uint32_t language) {
  ZTKTextRef text = "untouched";
  const ZTKResult result = ZTK_GetWarningTextForSetUSBAudioInput(
      10, channel, resultCode, language, &text);
  PrintText("warning", result, text);
  return 0;
}

}  // namespace

int main(int count, char **words) {
  const std::string what = count > 1 ? words[1] : "";
  if (what == "listen") return Listen(count - 2, words + 2);
  if (what == "set-input" && count == 4) {
    std::printf("%u\n",
                ZTK_SetUSBInputAudio(10, Number(words[2]), Number(words[3])));
    return 0;
  }
  if (what == "threads") return CountThreads();
  if (what == "growth" && count == 3) return CountGrowth(Number(words[2]));
  if (what == "unload" && count == 3) return Unload(words[2]);
  if (what == "drop-records" && count == 3)
    return DropRecords(Number(words[2]));
  if (what == "versions" && count == 3) return Versions(Number(words[2]));
  if (what == "warning" && count == 5) {
    return Warning(Number(words[2]), Number(words[3]), Number(words[4]));
  }
  std::fputs("library_child: unknown words\n", stderr);
  return 2;
}
