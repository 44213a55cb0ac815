// SPDX-License-Identifier: MIT
#include "ztk/commands/setting/pick.h"

#include <unistd.h>

#include <cerrno>
#include <functional>
#include <optional>

#include "cli/strings.h"
#include "cli/suggest.h"
#include "cli/terminal.h"
#include "ztk/commands/setting/setting_parts.h"
#include "ztk/output.h"
#include "ztk/progress.h"
#include "ztk/report.h"
#include "ztk/report/setting_report.h"

namespace ztk::program {

namespace {

// Reads a line from the terminal. Returns none at the end of the input.
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

// The message for an answer that names no choice.
std::string Complaint(const std::string &answer, const Match &match,
                      const std::vector<Choice> &choices) {
  if (!match.candidates.empty()) {
    return cli::Quoted(answer) + " can mean: " + Described(match.candidates) +
           "\n";
  }
  return "no choice " + cli::Quoted(answer) + NearestChoice(answer, choices) +
         "\n";
}

// Shows the list and asks until the user gives an answer that `accept` accepts.
// `accept` returns an empty text for such an answer, and a message that says
// why it does not accept any other answer.
void AskUntilAccepted(
    const std::string &place, const std::string &list,
    const std::string &prompt,
    const std::function<std::string(const std::string &answer)> &accept) {
  const cli::Layout layout{.columns = cli::Columns(STDOUT_FILENO),
                           .emphasis = cli::ShowsEmphasis(STDOUT_FILENO)};
  WriteOutput(cli::WrapLines(list, layout));
  // As long as this object exists, Ctrl-C reports that nothing was changed.
  const Asking asking;
  while (true) {
    WriteOutput(prompt);
    const std::optional<std::string> answer = ReadLine();
    if (!answer) WriteOutput("\n");
    if (!answer || answer->find_first_not_of(' ') == std::string::npos) {
      throw Failure(ExitCode::Usage,
                    "nothing was chosen for " + place + "; nothing was sent");
    }
    const std::string complaint = accept(*answer);
    if (complaint.empty()) return;
    WriteOutput(cli::WrapLines(complaint, layout));
  }
}

}  // namespace

bool CanPick() {
  return cli::IsTerminal(STDIN_FILENO) && cli::IsTerminal(STDOUT_FILENO);
}

Choice Pick(const std::string &place, const std::string &list,
            const std::vector<Choice> &choices) {
  Choice picked{};
  AskUntilAccepted(place, list, place + ", number or text (empty to leave): ",
                   [&](const std::string &answer) {
                     const Match match = FindChoice(choices, answer);
                     if (!match.choice) {
                       return Complaint(answer, match, choices);
                     }
                     picked = *match.choice;
                     return std::string();
                   });
  return picked;
}

std::uint32_t PickChannel(const Setting &setting) {
  std::string list;
  for (std::uint32_t channel = 0; channel < setting.channels; ++channel) {
    list += "  " + std::to_string(channel + 1) + "  " +
            PlaceName(setting, channel) + "\n";
  }
  std::uint32_t picked = 0;
  AskUntilAccepted(setting.title, list,
                   std::string(setting.title) + ", channel (empty to leave): ",
                   [&](const std::string &answer) {
                     const auto channel = ParseChannel(setting, answer);
                     if (!channel) {
                       return "no channel " + cli::Quoted(answer) +
                              NearestChannel(setting, answer) + "\n";
                     }
                     picked = *channel;
                     return std::string();
                   });
  return picked;
}

}  // namespace ztk::program
