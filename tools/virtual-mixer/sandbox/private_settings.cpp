// SPDX-License-Identifier: MIT
#include "virtual-mixer/sandbox/private_settings.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {
namespace {

namespace fs = std::filesystem;

// Holds what the library and ztk remember, in both folders.
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

// The user's own; empty when it cannot be told.
fs::path OwnFolder(const Place &place) {
  fs::path folder = Variable(place.variable);
  if (folder.is_absolute()) return folder;
  const fs::path home = Variable("HOME");
  return home.is_absolute() ? home / place.belowHome : fs::path();
}

// What cannot be linked to is missing inside, which is no reason to stop.
void LinkToTheRest(const fs::path &own, const fs::path &stead) {
  std::error_code ignored;
  for (const auto &entry : fs::directory_iterator(own, ignored)) {
    const fs::path name = entry.path().filename();
    if (name == kMakersFolder) continue;
    fs::create_symlink(entry.path(), stead / name, ignored);
  }
}

std::string MakeFolder() {
  std::string path = Variable("TMPDIR");
  // A relative one would be taken for none.
  if (!fs::path(path).is_absolute()) path = "/tmp";
  path += "/ztk-settings.XXXXXX";
  if (mkdtemp(path.data()) != nullptr) return path;
  throw std::runtime_error("no folder for private settings: " + path + ": " +
                           std::strerror(errno));
}

}  // namespace

PrivateSettings::PrivateSettings() : folder_(MakeFolder()) {
  for (const Place &place : kPlaces) {
    const fs::path stead = fs::path(folder_) / place.name;
    // Made here, or the library would share a home with macOS instead.
    std::error_code failure;
    fs::create_directories(stead / kMakersFolder, failure);
    if (failure) {
      throw std::runtime_error("no folder for private settings: " +
                               stead.string() + ": " + failure.message());
    }
    LinkToTheRest(OwnFolder(place), stead);
  }
}

PrivateSettings::~PrivateSettings() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

std::vector<std::string> PrivateSettings::Environment() const {
  std::vector<std::string> variables;
  for (const Place &place : kPlaces) {
    variables.push_back(std::string(place.variable) + "=" + folder_ + "/" +
                        place.name);
  }
  return variables;
}

}  // namespace ztk::virtual_mixer
