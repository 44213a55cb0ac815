// SPDX-License-Identifier: MIT
#include "ztk/report/dry_run_report.h"

#include <algorithm>

#include "cli/strings.h"
#include "ztk/system/bus_watch.h"

namespace ztk::program {

namespace {

Json Number(const std::optional<std::uint32_t> &value) {
  return value ? Json(static_cast<std::int32_t>(*value)) : Json();
}

// The sentence for a plan without requests.
std::string WhyNoRequest(const Plan &plan) {
  if (plan.mixersFound() == 0) return "  no request, as no mixer is attached\n";
  if (plan.mixersThatCanBeOpened() == 0) {
    return "  no request, as no mixer can be opened\n";
  }
  return "  no request\n";
}

// What the mixers would receive, in words. The same request to several mixers
// is one line.
std::string RequestLines(const Plan &plan) {
  if (plan.requests().empty()) return WhyNoRequest(plan);
  std::vector<std::pair<std::string, std::vector<std::string>>> lines;
  for (const PlannedRequest &request : plan.requests()) {
    auto line = std::find_if(lines.begin(), lines.end(), [&](const auto &one) {
      return one.first == request.meaning;
    });
    if (line == lines.end()) {
      line = lines.insert(lines.end(), {request.meaning, {}});
    }
    const std::string mixer = std::to_string(request.mixer);
    std::vector<std::string> &mixers = line->second;
    if (std::find(mixers.begin(), mixers.end(), mixer) == mixers.end()) {
      mixers.push_back(mixer);
    }
  }
  std::string text;
  for (const auto &[meaning, mixers] : lines) {
    text += (mixers.size() == 1 ? "  mixer " : "  mixers ") +
            cli::Listed(mixers) + "  " + meaning + "\n";
  }
  const std::size_t closed = plan.mixersFound() - plan.mixersThatCanBeOpened();
  if (closed > 0) {
    text += "  " + std::to_string(closed) + " of " +
            std::to_string(plan.mixersFound()) +
            " mixers cannot be opened and would receive nothing\n";
  }
  return text;
}

void AddRequests(const Plan &plan, Report *report) {
  Json list = Json::array();
  report->text += RequestLines(plan);
  for (const auto &[mixer, setup, meaning] : plan.requests()) {
    list.push_back({{"mixer", mixer},
                    {"requestType", setup.type},
                    {"request", setup.request},
                    {"value", setup.value},
                    {"index", setup.index},
                    {"length", setup.length}});
  }
  report->fields["requests"] = std::move(list);
}

// The words for a value in a settings file.
std::string InFile(const PlannedWrite &write,
                   const std::optional<std::uint32_t> &value) {
  return value ? DescribedValue(*write.setting, write.channel, *value)
               : "nothing";
}

// What would be stored, in words; the name of each file follows its values.
std::string WriteLines(const Plan &plan) {
  std::vector<std::pair<std::string, std::string>> files;
  for (const PlannedWrite &write : plan.writes()) {
    auto file = std::find_if(
        files.begin(), files.end(),
        [&write](const auto &one) { return one.first == write.file; });
    if (file == files.end()) file = files.insert(file, {write.file, ""});
    file->second += "  remembered  " +
                    PlaceName(*write.setting, write.channel) + ": " +
                    (write.before == write.after
                         ? InFile(write, write.after) + ", unchanged"
                         : InFile(write, write.before) + " -> " +
                               InFile(write, write.after)) +
                    "\n";
  }
  std::string text;
  for (const auto &[name, lines] : files) {
    text += lines + "              in " + cli::OneLine(name) + "\n";
  }
  return text;
}

void AddWrites(const Plan &plan, Report *report) {
  Json list = Json::array();
  report->text += WriteLines(plan);
  for (const PlannedWrite &write : plan.writes()) {
    list.push_back({{"file", write.file},
                    {"key", write.key},
                    {"before", Number(write.before)},
                    {"after", Number(write.after)}});
  }
  report->fields["writes"] = std::move(list);
}

// Whom an announcement reaches. On a system without a message bus nobody
// receives it.
const char *Receivers() {
  model::BusWatch bus;
  return bus.IsAlive() ? ", to other programs\n"
                       : ", to other programs, if there is a message bus\n";
}

void AddAnnouncements(const Plan &plan, Report *report) {
  Json list = Json::array();
  const char *receivers = plan.announcements().empty() ? "" : Receivers();
  for (const PlannedAnnouncement &announcement : plan.announcements()) {
    report->text += "  announced   " + announcement.meaning + receivers;
    Json numbers = Json::object();
    for (const auto &[key, value] : announcement.numbers) numbers[key] = value;
    list.push_back(
        {{"name", announcement.name}, {"userInfo", std::move(numbers)}});
  }
  report->fields["announcements"] = std::move(list);
}

}  // namespace

void ReportDryRun(const Plan &plan, Report *report) {
  report->isAnswer = true;
  report->fields["dryRun"] = true;
  report->fields["mixers"] = {{"found", plan.mixersFound()},
                              {"canBeOpened", plan.mixersThatCanBeOpened()}};
  report->text += "Dry run: nothing is sent or stored. This would happen:\n";
  AddRequests(plan, report);
  AddWrites(plan, report);
  AddAnnouncements(plan, report);
}

}  // namespace ztk::program
