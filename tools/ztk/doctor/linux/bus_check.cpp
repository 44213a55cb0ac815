// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>

#include "ztk/doctor/finding.h"
#include "ztk/system/session_bus.h"

namespace ztk::model {

namespace {

constexpr char kAddress[] = "DBUS_SESSION_BUS_ADDRESS";

std::optional<std::string> Variable(const char *name) {
  const char *value = std::getenv(name);
  return value == nullptr ? std::nullopt : std::optional<std::string>(value);
}

// Whether a bus answers under another address.
bool AnswersAt(const std::string &address) {
  const std::optional<std::string> before = Variable(kAddress);
  setenv(kAddress, address.c_str(), 1);
  const bool answers = SessionBusAnswers();
  before ? setenv(kAddress, before->c_str(), 1) : unsetenv(kAddress);
  return answers;
}

// The usual address of the bus of a logged-in user.
std::string UsualAddress() {
  const std::string folder =
      Variable("XDG_RUNTIME_DIR")
          .value_or("/run/user/" + std::to_string(geteuid()));
  return "unix:path=" + folder + "/bus";
}

// Debian names a library's package after its soname: libsystemd.so.0.
std::string PackageOf(const std::string &library) {
  const std::size_t dot = library.find(".so.");
  return library.substr(0, dot) + library.substr(dot + 4);
}

// Not named after the library's soname.
constexpr char kLoopPackage[] = "libglib2.0-0";

void BlameLibrary(const std::string &purpose, const std::string &library,
                  const std::string &package, Finding *finding) {
  finding->cause =
      "the library that " + purpose + ", " + library + ", cannot be loaded";
  finding->command = "sudo apt install --reinstall " + package;
}

Finding ExplainNoBus() {
  Finding finding{.id = "no-bus",
                  .what = "other programs do not receive changes",
                  .cause =
                      "there is no session message bus here, as is usual over "
                      "ssh and in a container; this starts a shell with one "
                      "of its own",
                  .command = "dbus-run-session -- \"$SHELL\"",
                  .isNote = true};
  const std::string usual = UsualAddress();
  const char *const library = MissingBusLibrary();
  const std::optional<std::string> address = Variable(kAddress);
  if (library != nullptr) {
    BlameLibrary("reaches the message bus", library, PackageOf(library),
                 &finding);
    finding.isNote = false;
  } else if (geteuid() == 0 && Variable("SUDO_USER")) {
    finding.cause =
        "ztk runs as root, and the message bus belongs to your own user; run "
        "it without sudo";
    finding.command = "ztk doctor";
    finding.isNote = false;
  } else if (address != usual && AnswersAt(usual)) {
    finding.cause = "this shell does not know the message bus of your session";
    finding.command = "export DBUS_SESSION_BUS_ADDRESS=" + ShellQuoted(usual);
    finding.isNote = false;
  } else if (address) {
    finding.cause =
        "nothing answers at the address in DBUS_SESSION_BUS_ADDRESS; this "
        "starts a shell with a message bus of its own";
  }
  return finding;
}

}  // namespace

Findings CheckBus(std::string *good) {
  *good = "programs in the same session receive changes";
  Findings findings;
  if (!SessionBusAnswers()) findings.push_back(ExplainNoBus());
  // Only a program that receives changes needs this library.
  const char *const library = MissingLoopLibrary();
  if (library != nullptr) {
    Finding finding{.id = "no-loop",
                    .what = "ztk watch does not receive changes",
                    .cause = {},
                    .command = {}};
    BlameLibrary("delivers what is heard", library, kLoopPackage, &finding);
    findings.push_back(finding);
  }
  return findings;
}

}  // namespace ztk::model
