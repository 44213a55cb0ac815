// SPDX-License-Identifier: MIT
#include "ztk/report/dry_run_report.h"

#include <array>
#include <cstdio>

#include "cli/strings.h"

namespace ztk::program {

namespace {

std::string Fields(const Setup &setup) {
  std::array<char, 80> text{};
  std::snprintf(
      text.data(), text.size(),
      "type 0x%02X  request %u  value 0x%04X  index 0x%04X  length "
      "%u",
      static_cast<unsigned>(setup.type), static_cast<unsigned>(setup.request),
      static_cast<unsigned>(setup.value), static_cast<unsigned>(setup.index),
      static_cast<unsigned>(setup.length));
  return text.data();
}

Json Number(const std::optional<std::uint32_t> &value) {
  return value ? Json(static_cast<std::int32_t>(*value)) : Json();
}

// Nothing is to be sent, or nobody is there to receive it.
std::string WhyNoRequest(const Plan &plan) {
  if (plan.mixersFound() == 0) return "  no request, as no mixer is attached\n";
  if (plan.mixersThatCanBeOpened() == 0) {
    return "  no request, as no mixer can be opened\n";
  }
  return "  no request\n";
}

void AddRequests(const Plan &plan, Report *report) {
  Json list = Json::array();
  if (plan.requests().empty()) report->text += WhyNoRequest(plan);
  for (const auto &[mixer, setup, meaning] : plan.requests()) {
    report->text += "  mixer " + std::to_string(mixer) + "  " + meaning +
                    "\n           " + Fields(setup) + "\n";
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

void AddWrites(const Plan &plan, Report *report) {
  Json list = Json::array();
  for (const PlannedWrite &write : plan.writes()) {
    report->text += "  file  " + cli::OneLine(write.file) + "\n        " +
                    PlaceName(*write.setting, write.channel) + ": " +
                    (write.before == write.after
                         ? InFile(write, write.after) + ", unchanged"
                         : InFile(write, write.before) + " -> " +
                               InFile(write, write.after)) +
                    "\n";
    list.push_back({{"file", write.file},
                    {"key", write.key},
                    {"before", Number(write.before)},
                    {"after", Number(write.after)}});
  }
  report->fields["writes"] = std::move(list);
}

void AddAnnouncements(const Plan &plan, Report *report) {
  Json list = Json::array();
  for (const PlannedAnnouncement &announcement : plan.announcements()) {
    report->text += "  bus   " + announcement.meaning + "\n";
    Json numbers = Json::object();
    for (const auto &[key, value] : announcement.numbers) numbers[key] = value;
    list.push_back(
        {{"name", announcement.name}, {"userInfo", std::move(numbers)}});
  }
  report->fields["announcements"] = std::move(list);
}

}  // namespace

void ReportDryRun(const Plan &plan, Report *report) {
  report->fields["dryRun"] = true;
  report->fields["mixers"] = {{"found", plan.mixersFound()},
                              {"canBeOpened", plan.mixersThatCanBeOpened()}};
  report->text += "Dry run: nothing is sent or stored. This would happen:\n";
  AddRequests(plan, report);
  AddWrites(plan, report);
  AddAnnouncements(plan, report);
}

}  // namespace ztk::program
