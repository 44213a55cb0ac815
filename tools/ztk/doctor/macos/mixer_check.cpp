// SPDX-License-Identifier: MIT
#include <sys/mount.h>
#include <sys/param.h>

#include "ztk/doctor/finding.h"
#include "ztk/system/facts.h"
#include "ztk/system/places.h"

namespace ztk::model {

Finding ExplainNoMixer() {
  return {.id = "no-mixer",
          .what = "no mixer is attached",
          .cause =
              "the system finds none: it is unplugged or switched off; "
              "plug it in and switch it on",
          .command = "ztk doctor"};
}

Finding ExplainUnopened(int mixer, const std::string &place) {
  const Access access = TryToOpen(place);
  Finding finding{
      .id = Word(access.obstacle),
      .what = "mixer " + std::to_string(mixer) + " " + Explained(access),
      .cause = access.reason,
      .command = RestartCommand(mixer, place)};
  if (access.obstacle == Obstacle::None) {
    finding.cause = "it was busy for a moment";
    finding.command = "ztk doctor";
  } else if (access.obstacle == Obstacle::NoRight) {
    finding.command = "sudo ztk doctor";
  } else if (access.obstacle == Obstacle::Vanished) {
    finding.cause = "its USB cable or its power cable may be loose";
    finding.command = "ztk doctor";
  }
  return finding;
}

// This system has no command that detaches a device, so the user has to unplug
// it.
std::string RestartCommand(int /*mixer*/, const std::string & /*place*/) {
  return "printf 'Switch the mixer off and on, then press Return. '; read -r "
         "done; ztk doctor";
}

std::string MoveAwayCommand(const std::string &path) {
  return "mv " + ShellQuoted(path) + " " + ShellQuoted(path + ".") +
         "$(date +%s)";
}

std::string MakeWritableCommand(const std::string &folder) {
  struct statfs system {};
  const bool known = statfs(folder.c_str(), &system) == 0;
  return "sudo mount -uw " + ShellQuoted(known ? system.f_mntonname : folder);
}

Findings FindUserFolderNotes(const std::string & /*library*/) { return {}; }

Finding ExplainTexts(bool found) {
  const std::string why = WhyInstalledIsNotFound();
  if (!why.empty()) {
    return {.id = "texts-not-found",
            .what = "the warning texts are not found",
            .cause = why,
            .command = "ztk versions",
            .isNote = true};
  }
  return {.id = found ? "texts-broken" : "texts-missing",
          .what = found ? "the warning texts are incomplete"
                        : "the warning texts are not installed",
          .cause = std::string("VRM-D6Setup.framework ") +
                   (found ? "has no texts in " : "is not in ") +
                   "/Library/Frameworks" + kInSourceFolder,
          .command = "sudo cmake --install build"};
}

}  // namespace ztk::model
