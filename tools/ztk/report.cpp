// SPDX-License-Identifier: MIT
#include "ztk/report.h"

namespace ztk::program {

namespace {

constexpr ExitMeaning kExitMeanings[] = {
    {.exit = ExitCode::Done,
     .word = "",
     .text =
         "done: every mixer that was sent something answered, and what was\n"
         "set is remembered; a command that only shows something has shown\n"
         "it, also that no mixer answers; there may be a warning all the same"},
    {.exit = ExitCode::Found,
     .word = "found",
     .text = "ztk doctor has found a problem"},
    {.exit = ExitCode::Usage,
     .word = "usage",
     .text = "the words, or a file to import, were wrong; nothing was sent"},
    {.exit = ExitCode::NoMixer,
     .word = "no-mixer",
     .text =
         "no mixer answered; what was set, imported or undone is remembered,\n"
         "what was sent raw or as the default is not"},
    {.exit = ExitCode::Rejected,
     .word = "rejected",
     .text =
         "rejected: a model or value that the library does not take, a\n"
         "remembered value that does not belong there, or one that another\n"
         "program has changed since and ztk undo leaves alone"},
    {.exit = ExitCode::Failed,
     .word = "failed",
     .text = "something else failed"},
    {.exit = ExitCode::SomeMixers,
     .word = "some-mixers",
     .text = "some mixers answered, others did not; a choice is remembered"},
    {.exit = ExitCode::NotRemembered,
     .word = "not-remembered",
     .text = "sent, but not remembered: the settings file does not hold it"},
    {.exit = ExitCode::Interrupted,
     .word = "interrupted",
     .text = "interrupted by Ctrl-C; not ztk watch, which is ended so: 0"}};

// Never throws for text that is not UTF-8: a user may type anything.
std::string Dump(const Json &json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::span<const ExitMeaning> ExitMeanings() { return kExitMeanings; }

const char *ErrorWord(ExitCode exit) {
  for (const ExitMeaning &meaning : kExitMeanings) {
    if (meaning.exit == exit) return meaning.word;
  }
  return "failed";
}

std::string JsonLine(const std::string &command, const Report &report) {
  Json json;
  json["schema"] = kJsonSchema;
  json["command"] = command;
  json["ok"] = !report.problem.has_value();
  json.update(report.fields);
  if (!report.warnings.empty()) json["warnings"] = report.warnings;
  if (report.problem) {
    json["error"] = {{"code", ErrorWord(report.problem->exit)},
                     {"message", report.problem->message}};
  }
  return Dump(json);
}

}  // namespace ztk::program
