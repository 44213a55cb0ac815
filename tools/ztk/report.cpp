// SPDX-License-Identifier: MIT
#include "report.h"

namespace ztk::cli {

namespace {

constexpr std::size_t kLongestQuotation = 60;  // bytes

// Never throws for text that is not UTF-8: a user may type anything.
std::string Dump(const Json &json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

const char *ErrorWord(ExitCode exit) {
  switch (exit) {
    case ExitCode::Usage:
      return "usage";
    case ExitCode::NoMixer:
      return "no-mixer";
    case ExitCode::Rejected:
      return "rejected";
    case ExitCode::Done:
    case ExitCode::Failed:
      break;
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

std::string OneLine(const std::string &text) {
  std::string line;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    line += byte < 0x20 || byte == 0x7F ? ' ' : character;
  }
  return line;
}

std::string Quoted(const std::string &word) {
  if (word.size() <= kLongestQuotation) return '"' + OneLine(word) + '"';
  return '"' + OneLine(word.substr(0, kLongestQuotation)) + "...\"";
}

std::string Listed(const std::vector<std::string> &words) {
  std::string list;
  for (const std::string &word : words) {
    if (!list.empty()) list += ", ";
    list += word;
  }
  return list;
}

std::string Padded(const std::string &text, std::size_t width) {
  return text.size() < width ? text + std::string(width - text.size(), ' ')
                             : text;
}

}  // namespace ztk::cli
