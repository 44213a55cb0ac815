// SPDX-License-Identifier: MIT
#include "ztk/command_line.h"

#include <unistd.h>

#include <algorithm>
#include <exception>

#include "build_config.h"
#include "cli/parser.h"
#include "cli/strings.h"
#include "cli/terminal.h"
#include "ztk/commands/command.h"
#include "ztk/commands/other_commands.h"
#include "ztk/output.h"
#include "ztk/progress.h"

namespace ztk::program {

namespace {

// An invalid command line is reported as JSON too, so this is read before the
// command line is parsed.
bool AsksForJson(const std::vector<std::string> &words) {
  const auto end = std::find(words.begin(), words.end(), "--");
  return std::find(words.begin(), end, Parameter::kJson) != end;
}

// A user may type a channel as "USB 3", which the shell passes as two words.
// Joins these words.
std::vector<std::string> WithWholeChannels(std::vector<std::string> words) {
  if (words.empty() ||
      (words.front() != "input" && words.front() != "output")) {
    return words;
  }
  for (std::size_t i = 1; i + 1 < words.size(); ++i) {
    if (cli::LowerCase(words[i]) != "usb" || !cli::ParseNumber(words[i + 1])) {
      continue;
    }
    words[i] += words[i + 1];
    words.erase(words.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    break;
  }
  return words;
}

Report Interrupted() {
  Report report;
  report.problem = {.exit = ExitCode::Interrupted, .message = kInterrupted};
  return report;
}

Report ProblemReport(ExitCode exit, const std::string &message) {
  Report report;
  report.problem = {.exit = exit, .message = message};
  return report;
}

// Help, version or completions.
Report Shown(const cli::Invocation &call) {
  Report report;
  switch (call.kind) {
    case cli::Invocation::Kind::Help:
      report.text = cli::FillParagraphs(call.text, cli::Columns(STDOUT_FILENO));
      report.fields["help"] = cli::WrapLines(cli::FillParagraphs(call.text, 0),
                                             {.columns = 0, .emphasis = false});
      break;
    case cli::Invocation::Kind::Version:
      report.text = call.text;
      report.fields["version"] = build::kVersion;
      break;
    case cli::Invocation::Kind::Completion:
    case cli::Invocation::Kind::Run:
      report.text = call.text;
      break;
  }
  return report;
}

}  // namespace

int RunCommandLine(const std::vector<std::string> &words) {
  if (words.empty() && cli::IsTerminal(STDOUT_FILENO)) {
    return RunCommand("", ShowOverview, {});
  }
  const bool json = AsksForJson(words);
  try {
    const cli::Program program = cli::ThisProgram(cli::FirstWord(words));
    const cli::Invocation call = cli::Parse(program, WithWholeChannels(words));
    if (call.command != nullptr) return call.command->run(call.arguments);
    const bool isCompletion = call.kind == cli::Invocation::Kind::Completion;
    return Print(call.path, Shown(call), {.json = json && !isCompletion});
  } catch (const cli::UsageError &error) {
    return Print(error.path(), ProblemReport(ExitCode::Usage, error.what()),
                 {.json = json});
  } catch (const std::exception &error) {
    return Print("", ProblemReport(ExitCode::Failed, error.what()),
                 {.json = json});
  }
}

int RunCommand(const std::string &path,
               const std::function<Report(const cli::Arguments &)> &run,
               const cli::Arguments &arguments) {
  const Form form{.json = arguments.Has(Parameter::kJson),
                  .quiet = arguments.Has(Parameter::kQuiet)};
  EndOnInterrupt(form.json ? JsonLine(path, Interrupted()) + "\n" : "");
  Report report;
  try {
    report = run(arguments);
  } catch (const Failure &failure) {
    report.problem = failure.problem();
  } catch (const std::exception &error) {
    report = ProblemReport(ExitCode::Failed, error.what());
  }
  return Print(path, report, form);
}

}  // namespace ztk::program
