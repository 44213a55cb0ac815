// SPDX-License-Identifier: MIT
#include "ztk/commands/pick.h"

#include <unistd.h>

#include <cerrno>
#include <optional>

#include "cli/strings.h"
#include "cli/terminal.h"
#include "ztk/output.h"
#include "ztk/progress.h"
#include "ztk/report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

// A line that the terminal hands over, as it was edited there; none at its end.
std::optional<std::string> ReadLine() {
  std::string line;
  while (true) {
    char character = 0;
    const ssize_t length = read(STDIN_FILENO, &character, 1);
    if (length < 0 && errno == EINTR) continue;
    if (length <= 0) {
      if (line.empty()) return std::nullopt;
      return line;
    }
    if (character == '\n') return line;
    line += character;
  }
}

// What to say to an answer that names no choice.
std::string Complaint(const std::string &answer, const Match &match,
                      const std::vector<Choice> &choices) {
  if (!match.candidates.empty()) {
    return cli::Quoted(answer) + " can mean: " + Described(match.candidates) +
           "\n";
  }
  return "no choice " + cli::Quoted(answer) + NearestChoice(answer, choices) +
         "\n";
}

}  // namespace

bool CanPick() {
  return cli::IsTerminal(STDIN_FILENO) && cli::IsTerminal(STDOUT_FILENO);
}

Choice Pick(const std::string &place, const std::string &list,
            const std::vector<Choice> &choices) {
  const cli::Layout layout{.columns = cli::Columns(STDOUT_FILENO),
                           .standsOut = cli::MayStandOut(STDOUT_FILENO)};
  WriteOutput(cli::LaidOut(list, layout));
  const Asking asking;
  while (true) {
    WriteOutput(place + ", number or text: ");
    const std::optional<std::string> answer = ReadLine();
    if (!answer) WriteOutput("\n");
    if (!answer || answer->find_first_not_of(' ') == std::string::npos) {
      throw Failure(ExitCode::Usage,
                    "nothing was chosen for " + place + "; nothing was sent");
    }
    const Match match = FindChoice(choices, *answer);
    if (match.choice) return *match.choice;
    WriteOutput(cli::LaidOut(Complaint(*answer, match, choices), layout));
  }
}

}  // namespace ztk::program
