// SPDX-License-Identifier: MIT
#include "virtual-mixer/serve.h"

#include <cstdio>

#include "cli/strings.h"
#include "virtual-mixer/command_runner.h"
#include "virtual-mixer/control/control_commands.h"
#include "virtual-mixer/control/control_socket.h"
#include "virtual-mixer/temporary_folder.h"
#include "virtual-mixer/usbip/usbip_world.h"

namespace ztk::virtual_mixer {
namespace {

constexpr char kStandardPort[] = "3240";
// The path of a socket has at most 107 characters.
constexpr std::size_t kLongestParent = 70;

std::string ParentOfControlFolder() {
  const std::string folder = cli::Variable("XDG_RUNTIME_DIR");
  return folder.empty() ? TemporaryParent(kLongestParent) : folder;
}

std::string CountOf(const UsbipWorld &world) {
  const int mixers = world.MixerCount();
  const int others = world.OtherCount();
  std::string text =
      std::to_string(mixers) + (mixers == 1 ? " mixer" : " mixers");
  if (others > 0) {
    text += " and " + std::to_string(others) +
            (others == 1 ? " other device" : " other devices");
  }
  return text;
}

// How to attach the first mixer, as one would type it.
std::string AttachCommand(const UsbipWorld &world, const std::string &address) {
  const std::size_t colon = address.rfind(':');
  const std::string port = address.substr(colon + 1);
  std::string host = address.substr(0, colon);
  if (host.front() == '[') host = host.substr(1, host.size() - 2);
  return "sudo usbip " +
         (port == kStandardPort ? "" : "--tcp-port " + port + " ") +
         "attach -r " + host + " -b " +
         (world.MixerCount() == 0 ? "1-1" : world.Status(1).address.Name());
}

void Introduce(const ServeOptions &options, const UsbipWorld &world,
               const std::string &address, const std::string &controlPath) {
  const std::string count = CountOf(world);
  if (options.attach) {
    std::printf("Attached %s to this machine's kernel.\n", count.c_str());
  } else {
    std::printf("Serving %s at %s. Attach as in:\n  %s\n", count.c_str(),
                address.c_str(), AttachCommand(world, address).c_str());
  }
  std::printf(
      "To turn selectors, unplug and set faults from another terminal, first:\n"
      "  export %s=%s\nCtrl-C ends it.\n",
      kControlVariable, controlPath.c_str());
  std::fflush(stdout);
}

void WaitForSignal(const SignalGuard &signals) {
  siginfo_t info{};
  do {
    info.si_signo = SIGCHLD;
    sigwaitinfo(&signals.Held(), &info);
  } while (info.si_signo == SIGCHLD);
}

}  // namespace

int Serve(const ServeOptions &options) {
  if (!cli::Variable("UMOCKDEV_DIR").empty()) {
    throw std::runtime_error(
        "serve needs the kernel of this machine; leave the sandbox first");
  }
  FillStandardStreams();
  const SignalGuard signals;
  const LogFile log(options.world.logFile);
  UsbipWorld world(PlacementsFor(options.world), log.Sink());
  Prepare(&world, options.world);
  const std::string parent = ParentOfControlFolder();
  RemoveAbandonedFolders(parent);
  const TemporaryFolder folder(parent, "ztk-virtual-mixer");
  const std::string controlPath = folder.Path() + "/control";
  const ControlServer control(controlPath, [&world](std::string_view line) {
    return RunControlCommand(&world, line);
  });
  std::string address;
  if (options.attach) {
    world.Attach();
  } else {
    address = world.Listen(options.listen);
  }
  if (options.command.empty()) {
    Introduce(options, world, address, controlPath);
    WaitForSignal(signals);
    return 0;
  }
  AddOwnFolderToPath();
  std::string error;
  const int status = RunCommand(
      options.command,
      EnvironmentWith({std::string(kControlVariable) + "=" + controlPath}),
      signals, &error);
  if (!error.empty()) {
    std::fprintf(stderr, "ztk-virtual-mixer: %s\n", error.c_str());
  }
  return status;
}

}  // namespace ztk::virtual_mixer
