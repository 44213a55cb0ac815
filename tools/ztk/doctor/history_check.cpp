// SPDX-License-Identifier: MIT
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "ztk/doctor/finding.h"
#include "ztk/model/history/history.h"

namespace ztk::model {

namespace {

// A folder that does not exist is made at the first change.
bool IsUsable(const std::string &folder) {
  struct stat status {};
  return stat(folder.c_str(), &status) != 0 ||
         access(folder.c_str(), R_OK | W_OK | X_OK) == 0;
}

Finding Unreadable(const std::string &path, const std::string &reason) {
  Finding finding{.id = "history-unreadable",
                  .what = "ztk undo cannot read " + path,
                  .cause = reason,
                  .command = MoveAwayCommand(path)};
  if (access(path.c_str(), R_OK) != 0 && errno == EACCES) {
    finding.cause = "you have no permission to read it";
    finding.command = TakeOverCommand(path, "u+rw");
  }
  return finding;
}

}  // namespace

Findings CheckHistory(std::string *good) {
  const std::string folder = StateFolder();
  // The check of the settings says that there is no home.
  *good = "ztk undo can take back changes";
  if (folder.empty()) return {};
  const std::string path = folder + "/ztk-history.jsonl";
  if (const std::string file = FileInTheWay(folder); !file.empty()) {
    return {{.id = "history-folder",
             .what = "ztk undo cannot use " + file,
             .cause = "it is a file where a folder has to be",
             .command = ClearTheWayCommand(file)}};
  }
  if (!IsUsable(folder)) {
    return {{.id = "history-folder",
             .what = "ztk undo cannot use " + path,
             .cause = "you have no permission for its folder",
             .command = TakeOverCommand(folder, "u+rwx")}};
  }
  const auto [text, reason] = ReadStateFile(path);
  if (!reason.empty()) return {Unreadable(path, reason)};
  if (!ParseHistory(text).damaged) return {};
  return {{.id = "history-damaged",
           .what = "ztk undo cannot take back every change: " + path +
                   " is damaged",
           .cause = "some of its lines are not changes that ztk has recorded; "
                    "this starts a new history and keeps the old one",
           .command = MoveAwayCommand(path)}};
}

}  // namespace ztk::model
