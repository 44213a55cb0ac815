// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "platform/common/file_access.h"
#include "platform/paths.h"
#include "platform/property_list.h"
#include "platform/text.h"
#include "store/settings_path.h"
#include "ztk/doctor/finding.h"
#include "ztk/model/kept_files.h"
#include "ztk/system/library_text.h"

namespace ztk::model {

namespace {

bool Exists(const std::string &path, struct stat *status) {
  return stat(path.c_str(), status) == 0;
}

// The target of a symbolic link; the path itself when it is not a link.
std::string Target(const std::string &path) {
  std::array<char, PATH_MAX> target{};
  return realpath(path.c_str(), target.data()) == nullptr ? path
                                                          : target.data();
}

void FindUnreadable(const std::string &path, Findings *findings) {
  struct stat status {};
  // A missing file is no problem. FindUnwritable() reports a file in place of a
  // folder (ENOTDIR).
  if (!Exists(path, &status) && (errno == ENOENT || errno == ENOTDIR)) return;
  platform::property_list::Dictionary *settings =
      WithText(path, platform::property_list::ReadFile);
  platform::property_list::Release(settings);
  if (settings != nullptr) return;
  Finding finding{.id = "settings-unreadable",
                  .what = path + " cannot be read, so the defaults are used",
                  .cause = "it is not a settings file, or it is damaged",
                  .command = MoveAwayCommand(path)};
  const int opened = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (opened >= 0) {
    close(opened);
  } else if (errno == EACCES) {
    finding.cause = "you have no permission to read it";
    finding.command = TakeOverCommand(path, "u+rw");
  }
  findings->push_back(finding);
}

// Reports each settings file that could not be read earlier and was therefore
// renamed. A damaged file has to be repaired before it is renamed back.
void FindKept(const std::string &path, Findings *findings) {
  for (const std::string &kept : KeptFiles(path)) {
    Finding finding{.id = "settings-kept",
                    .what = "the settings in " + kept + " are not remembered",
                    .cause =
                        "you had no permission to read the file when a "
                        "setting was stored, so it was renamed; the command "
                        "puts it back and replaces the settings stored since",
                    .command = BringBackCommand(kept, path),
                    .isNote = true};
    platform::property_list::Dictionary *settings =
        WithText(kept, platform::property_list::ReadFile);
    platform::property_list::Release(settings);
    if (settings == nullptr && access(kept.c_str(), R_OK) == 0) {
      finding.cause =
          "the file was damaged when a setting was stored, so it was renamed; "
          "once you have repaired it, the command puts it back and replaces "
          "the settings stored since";
    }
    findings->push_back(finding);
  }
}

// Why no file can be made in the folder: an error number, or 0.
int TryToWrite(const std::string &folder) {
  std::string name = folder + "/.ztk-doctor-XXXXXX";
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0) return errno;
  constexpr char kContent[] = "made by ztk doctor, and removed at once\n";
  const ssize_t written = write(file, kContent, sizeof kContent - 1);
  int error = written < 0 ? errno : 0;
  if (fsync(file) != 0 && error == 0) error = errno;
  close(file);
  unlink(name.c_str());
  return error;
}

Finding Unwritable(const std::string &folder, int error) {
  Finding finding{.id = "settings-not-writable",
                  .what =
                      "settings are not remembered: nothing can be written "
                      "to " +
                      folder,
                  .cause = std::strerror(error),
                  .command = "ls -ld " + ShellQuoted(folder)};
  switch (error) {
    case EACCES:
    case EPERM:
      finding.cause = "you have no permission to write there";
      finding.command = TakeOverCommand(folder, "u+rwx");
      break;
    case EROFS:
      finding.cause = "it lies on a file system that is read-only";
      finding.command = MakeWritableCommand(folder);
      break;
    case ENOSPC:
    case EDQUOT:
      finding.cause = "the disk or your quota is full";
      finding.command = "df -h " + ShellQuoted(folder);
      break;
    default:
      break;
  }
  return finding;
}

// The first setter creates missing folders, but no missing home folder. The
// last existing folder decides whether that is possible.
void FindUnwritable(std::string folder, Findings *findings) {
  if (const std::string file = FileInTheWay(folder); !file.empty()) {
    findings->push_back({.id = "settings-not-writable",
                         .what = "settings are not remembered: nothing can be "
                                 "written below " +
                                 file,
                         .cause = "it is a file where a folder has to be",
                         .command = ClearTheWayCommand(file)});
    return;
  }
  struct stat status {};
  for (int missing = 0; !Exists(folder, &status); ++missing) {
    if (missing == platform::kMaxMissingFolders) {
      findings->push_back({.id = "settings-not-writable",
                           .what = "settings are not remembered: there is no "
                                   "folder " +
                                   folder,
                           .cause = "missing folders are created inside a "
                                    "home folder, but not the home folder",
                           .command = "mkdir -p " + ShellQuoted(folder)});
      return;
    }
    folder = ParentFolder(folder);
  }
  const int error = TryToWrite(folder);
  if (error == 0) return;
  const Finding finding = Unwritable(folder, error);
  for (const Finding &known : *findings) {
    if (known.command == finding.command) return;
  }
  findings->push_back(finding);
}

}  // namespace

Findings CheckSettingsFiles(const std::vector<std::string> &models,
                            std::string *good) {
  const platform::text::OwnedText userFolder(platform::paths::UserLibrary());
  if (userFolder.get() == nullptr) {
    return {{.id = "settings-no-home",
             .what = "settings are not remembered: you have no home folder",
             .cause = "HOME is not set, and the list of users has no entry for "
                      "you",
             .command = "export HOME=/path/to/your/home"}};
  }
  Findings findings;
  const std::string folder = Utf8(userFolder.get()) + "/Preferences";
  for (const std::string &model : models) {
    const platform::text::OwnedText file(WithText(model, store::MakePath));
    const std::string path = Utf8(file.get());
    FindUnreadable(path, &findings);
    FindKept(path, &findings);
    struct stat status {};
    // The library follows a link when it writes the file.
    if (Exists(path, &status) && ParentFolder(Target(path)) != Target(folder)) {
      FindUnwritable(ParentFolder(Target(path)), &findings);
    }
  }
  FindUnwritable(folder, &findings);
  for (const Finding &finding : FindUserFolderNotes(Utf8(userFolder.get()))) {
    findings.push_back(finding);
  }
  *good = "they can be read and written in " + folder;
  return findings;
}

}  // namespace ztk::model
