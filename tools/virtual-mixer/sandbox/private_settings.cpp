// SPDX-License-Identifier: MIT
#include "virtual-mixer/sandbox/private_settings.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "cli/strings.h"
#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {
namespace {

namespace fs = std::filesystem;

// Folder of the settings and the history, in both folders.
constexpr char kMakersFolder[] = "tarvix";

struct Place {
  const char *variable;
  const char *belowHome;  // where it is without the variable
  const char *name;       // in the private folder
};
constexpr Place kPlaces[] = {
    {.variable = "XDG_CONFIG_HOME", .belowHome = ".config", .name = "config"},
    {.variable = "XDG_STATE_HOME",
     .belowHome = ".local/state",
     .name = "state"}};

// The user's own folder; empty when it is not known.
fs::path OwnFolder(const Place &place) {
  fs::path folder = cli::Variable(place.variable);
  if (folder.is_absolute()) return folder;
  const fs::path home = cli::Variable("HOME");
  return home.is_absolute() ? home / place.belowHome : fs::path();
}

// Links to everything in the user's own folder but the settings of the mixers.
// Programs inside have to do without an entry that cannot be linked to.
void LinkToOtherEntries(const fs::path &own, const fs::path &replacement) {
  std::error_code ignored;
  for (const auto &entry : fs::directory_iterator(own, ignored)) {
    const fs::path name = entry.path().filename();
    if (name == kMakersFolder) continue;
    fs::create_symlink(entry.path(), replacement / name, ignored);
  }
}

}  // namespace

PrivateSettings::PrivateSettings()
    : folder_(TemporaryParent(), "ztk-settings") {
  for (const Place &place : kPlaces) {
    const fs::path replacement = fs::path(Folder()) / place.name;
    // Made here, or the library would share a home with macOS instead.
    std::error_code failure;
    fs::create_directories(replacement / kMakersFolder, failure);
    if (failure) {
      throw std::runtime_error("no folder for private settings: " +
                               replacement.string() + ": " + failure.message());
    }
    LinkToOtherEntries(OwnFolder(place), replacement);
  }
}

std::vector<std::string> PrivateSettings::Environment() const {
  std::vector<std::string> variables;
  for (const Place &place : kPlaces) {
    variables.push_back(std::string(place.variable) + "=" + Folder() + "/" +
                        place.name);
  }
  return variables;
}

}  // namespace ztk::virtual_mixer
