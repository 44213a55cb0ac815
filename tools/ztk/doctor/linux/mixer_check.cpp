// SPDX-License-Identifier: MIT
//
// Why an attached mixer cannot be opened on Linux: a udev rule grants access to
// the user of the seat, and a container can hide the device.
#include <dlfcn.h>
#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "ZTKFunc.h"
#include "build_config.h"
#include "cli/strings.h"
#include "udev_rule.h"
#include "usb/USB.h"
#include "ztk/doctor/finding.h"
#include "ztk/system/file_text.h"
#include "ztk/system/linux/udev_rules.h"
#include "ztk/system/places.h"

namespace ztk::model {

namespace {

constexpr char kRuleName[] = "70-tarvix-mixer.rules";
constexpr char kOwnRule[] = "/etc/udev/rules.d/70-tarvix-mixer.rules";
constexpr char kOwnersRule[] = "/etc/udev/rules.d/71-tarvix-mixer-owner.rules";
// The tag that the rule adds to a device.
constexpr char kSeatTag[] = "uaccess";

std::string SysFolder(const std::string &place) {
  return "/sys/bus/usb/devices/" + place;
}

bool Exists(const std::string &path) { return access(path.c_str(), F_OK) == 0; }

// The value after "key=" at the beginning of a line.
std::string ValueIn(const std::string &text, const std::string &key) {
  for (const std::string &line : cli::LinesOf(text)) {
    if (line.starts_with(key)) return line.substr(key.size());
  }
  return "";
}

// Containers, with the option that gives them access to a device.
std::string MixerInNumbers() {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "vendorid=%04x productid=%04x",
                static_cast<unsigned>(build::kUsbVendorId),
                static_cast<unsigned>(usb::kMixerProductId));
  return text.data();
}

struct Container {
  std::string name;
  std::string command;  // which lets the devices in
};

std::optional<Container> AroundUs() {
  if (const std::string info = FileText("/.flatpak-info"); !info.empty()) {
    return Container{.name = "a Flatpak sandbox",
                     .command = "flatpak override --user --device=all " +
                                ShellQuoted(ValueIn(info, "name="))};
  }
  if (const std::string snap = cli::Variable("SNAP_NAME"); !snap.empty()) {
    return Container{
        .name = "a snap",
        .command = "sudo snap connect " + ShellQuoted(snap) + ":raw-usb"};
  }
  // The kind of the container, as its manager has told the system inside.
  const std::string told = FileText("/run/systemd/container");
  const std::string kind = told.substr(0, told.find('\n'));
  if (kind == "lxc") {
    return Container{.name = "an LXC container",
                     .command = "lxc config device add CONTAINER mixer usb " +
                                MixerInNumbers()};
  }
  if (kind == "systemd-nspawn") {
    return Container{.name = "a systemd-nspawn container",
                     .command = "sudo machinectl bind MACHINE /dev/bus/usb"};
  }
  const bool podman = kind == "podman" || Exists("/run/.containerenv");
  if (podman || kind == "docker" || Exists("/.dockerenv")) {
    const std::string program = podman ? "podman" : "docker";
    return Container{.name = "a " + program + " container",
                     .command = program +
                                " run -v /dev/bus/usb:/dev/bus/usb "
                                "--device-cgroup-rule='c 189:* rmw' IMAGE"};
  }
  return std::nullopt;
}

// The system service that started this program; empty when there is none.
std::string Service() {
  const std::string group = FileText("/proc/self/cgroup");
  constexpr char kServices[] = "/system.slice/";
  const std::size_t begin = group.find(kServices);
  if (begin == std::string::npos) return "";
  const std::string unit = group.substr(begin + sizeof kServices - 1);
  const std::size_t end = unit.find(".service");
  return end == std::string::npos ? "" : unit.substr(0, end) + ".service";
}

// A command that makes udev read its rules and apply them to every mixer, as
// when it is plugged in.
std::string Replug() {
  std::array<char, 60> matches{};
  std::snprintf(matches.data(), matches.size(),
                "--attr-match=idVendor=%04x --attr-match=idProduct=%04x",
                static_cast<unsigned>(build::kUsbVendorId),
                static_cast<unsigned>(usb::kMixerProductId));
  return std::string(
             "sudo udevadm control --reload && sudo udevadm trigger "
             "--action=add --settle --subsystem-match=usb ") +
         matches.data();
}

std::string InstallRule(const std::string &rule, const std::string &file) {
  return "echo '" + rule + "' | sudo tee " + file + " && " + Replug();
}

// The rules file that udev uses.
struct Rule {
  std::string path;  // empty where there is none
  bool fits = false;
};

Rule FindRule() {
  const std::string path = FindUdevRules(kRuleName);
  if (path.empty()) return {};
  return {.path = path,
          .fits = FileText(path).find(kMixerMatch) != std::string::npos};
}

// Whether udev has applied the rule to the mixer that is plugged in now.
bool IsTagged(const std::string &place) {
  std::string number = FileText(SysFolder(place) + "/dev");
  number = number.substr(0, number.find('\n'));
  for (const std::string &line :
       cli::LinesOf(FileText("/run/udev/data/c" + number))) {
    if (line == std::string("G:") + kSeatTag) return true;
    if (line == std::string("Q:") + kSeatTag) return true;
  }
  return false;
}

// The environment is not used here: after "su" it describes another user, and
// in a service it is empty.
std::string UserName() {
  const passwd *user = getpwuid(geteuid());
  return user == nullptr ? std::to_string(geteuid()) : user->pw_name;
}

Finding NoSeat(const std::string &what) {
  std::string cause =
      "the rule grants access to the user who is logged in at this seat, and ";
  if (!cli::Variable("SSH_CONNECTION").empty() ||
      !cli::Variable("SSH_TTY").empty()) {
    cause += "you are logged in over ssh";
  } else if (const std::string service = Service(); !service.empty()) {
    cause += service + " belongs to no seat";
  } else {
    cause += "your session is not the active one there";
  }
  const std::string user = UserName();
  std::string rule = kMixerMatch;
  rule += ", OWNER=\"" + user + "\"";
  return {.id = "no-seat",
          .what = what,
          .cause = cause + "; this grants " + user + " access from everywhere",
          .command = InstallRule(rule, kOwnersRule)};
}

// Inside the sandbox of the virtual mixer the rules and devices of the system
// have nothing to do with the mixer.
bool IsInSandbox() {
  return !cli::Variable("ZTK_VIRTUAL_MIXER_CONTROL").empty() &&
         !cli::Variable("UMOCKDEV_DIR").empty();
}

Finding ForbiddenInSandbox(int mixer, const std::string &what) {
  return {.id = "forbidden-in-sandbox",
          .what = what,
          .cause = "this is a virtual mixer, and ztk-virtual-mixer forbids it",
          .command = "ztk-virtual-mixer allow " + std::to_string(mixer)};
}

Finding NotPermitted(const std::string &what, const std::string &place) {
  const Rule rule = FindRule();
  if (rule.path.empty()) {
    return {.id = "rule-missing",
            .what = what,
            .cause =
                "only root may open it, because no udev rule grants you access",
            .command = InstallRule(kUdevRule, kOwnRule)};
  }
  if (!rule.fits) {
    return {
        .id = "rule-disabled",
        .what = what,
        .cause = "only root may open it: " + rule.path +
                 " replaces the rule that grants you access, or is for another "
                 "mixer",
        .command = InstallRule(kUdevRule, kOwnRule)};
  }
  if (!IsTagged(place)) {
    return {.id = "rule-not-applied",
            .what = what,
            .cause =
                "the rule that grants you access was installed after the mixer "
                "was plugged in; this command has the same effect as plugging "
                "it in again",
            .command = Replug()};
  }
  return NoSeat(what);
}

Finding NoNode(const std::string &what, const std::string &node) {
  Finding finding{
      .id = "no-node",
      .what = what,
      .cause = "there is no " + node + "; this command makes udev create it",
      .command = Replug()};
  if (const auto container = AroundUs()) {
    finding.cause =
        "this is " + container->name + ", which has no access to " + node;
    finding.command = container->command;
  }
  return finding;
}

Finding Forbidden(const std::string &what, const std::string &node) {
  Finding finding{.id = "forbidden", .what = what, .cause = {}, .command = {}};
  std::string place = "a service";
  if (const auto container = AroundUs()) {
    place = container->name;
    finding.command = container->command;
  } else {
    const std::string service = Service();
    if (!service.empty()) place = service;
    finding.command = "sudo systemctl set-property ";
    finding.command += service.empty() ? "NAME.service" : service;
    finding.command += " DeviceAllow='char-usb_device rw'";
  }
  finding.cause = "this is " + place + ", which may not use " + node;
  return finding;
}

}  // namespace

Finding ExplainNoMixer() {
  if (Exists("/sys/bus/usb/devices")) {
    return {.id = "no-mixer",
            .what = "no mixer is attached",
            .cause =
                "the system finds none: it is unplugged or switched off; "
                "plug it in and switch it on",
            .command = "ztk doctor"};
  }
  Finding finding{.id = "no-usb",
                  .what = "no mixer can be found",
                  .cause =
                      "this system has no USB: its kernel, or a part of "
                      "it, is not loaded",
                  .command = "sudo modprobe --all usbcore xhci_pci"};
  if (const auto container = AroundUs()) {
    finding.cause.assign("this is ").append(container->name);
    finding.cause.append(", to which no USB is shown");
    finding.command = container->command;
  }
  return finding;
}

Finding ExplainUnopened(int mixer, const std::string &place) {
  const Access access = TryToOpen(place);
  const std::string what =
      "mixer " + std::to_string(mixer) + " is attached, but you cannot open it";
  switch (access.obstacle) {
    case Obstacle::NoRight:
      return IsInSandbox() ? ForbiddenInSandbox(mixer, what)
                           : NotPermitted(what, place);
    case Obstacle::NoNode:
      return NoNode(what, access.node);
    case Obstacle::Forbidden:
      return Forbidden(what, access.node);
    case Obstacle::None:
    case Obstacle::Vanished:
    case Obstacle::Other:
      break;
  }
  Finding finding{.id = "not-opened",
                  .what = what,
                  .cause = "it was busy for a moment",
                  .command = "ztk doctor"};
  if (!access.reason.empty()) {
    finding.cause = access.node + ": " + access.reason;
  }
  return finding;
}

std::string RestartCommand(int mixer, const std::string &place) {
  if (IsInSandbox()) {
    return "ztk-virtual-mixer fault -m " + std::to_string(mixer) + " none";
  }
  return "for on in 0 1; do echo $on | sudo tee " + SysFolder(place) +
         "/authorized; done";
}

// Whatever already has that name.
std::string MoveAwayCommand(const std::string &path) {
  return "mv --backup=numbered " + ShellQuoted(path) + " " +
         ShellQuoted(path + ".old");
}

std::string MakeWritableCommand(const std::string &folder) {
  return "sudo mount -o remount,rw \"$(findmnt -no TARGET -T " +
         ShellQuoted(folder) + ")\"";
}

Findings FindUserFolderNotes(const std::string &library) {
  if (!library.ends_with("/Library")) return {};
  return {
      {.id = "settings-shared",
       .what = "settings are kept in " + library + "/Preferences",
       .cause = "this home is shared with macOS, so both systems use the same "
                "ones; this gives this system its own",
       .command = "mkdir -p ~/.config/tarvix && cp -a " +
                  ShellQuoted(library + "/Preferences") + " ~/.config/tarvix/",
       .isNote = true}};
}

namespace {

// A package installs the library below /usr; below /usr/local are files that
// were installed from source.
bool LibraryIsFromPackage() {
  Dl_info info{};
  const auto *const function =
      reinterpret_cast<const void *>(&ZTK_GetProductId);
  const std::string file =
      dladdr(function, &info) != 0 && info.dli_fname != nullptr ? info.dli_fname
                                                                : "";
  return (file.starts_with("/usr/") && !file.starts_with("/usr/local/")) ||
         file.starts_with("/lib/");
}

}  // namespace

Finding ExplainTexts(bool found) {
  const std::string folder = build::kDataDir;
  const bool packaged = LibraryIsFromPackage();
  return {.id = found ? "texts-broken" : "texts-missing",
          .what = found ? "the warning texts are incomplete"
                        : "the warning texts are not installed",
          .cause = std::string("VRM-D6Setup.framework ") +
                   (found ? "has no texts in " : "is not in ") + folder +
                   "/tarvix" + (packaged ? "" : kInSourceFolder),
          .command = packaged ? "sudo apt install --reinstall libztkfunc-common"
                              : "sudo cmake --install build"};
}

}  // namespace ztk::model
