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

void AddRequests(const Plan &plan, Report *report) {
  Json list = Json::array();
  if (plan.requests().empty()) {
    report->text += plan.mixersFound() == 0
                        ? "  no request, as no mixer is attached\n"
                        : "  no request, as no mixer can be opened\n";
  }
  for (const auto &[mixer, setup] : plan.requests()) {
    report->text +=
        "  mixer " + std::to_string(mixer) + "  " + Fields(setup) + "\n";
    list.push_back({{"mixer", mixer},
                    {"requestType", setup.type},
                    {"request", setup.request},
                    {"value", setup.value},
                    {"index", setup.index},
                    {"length", setup.length}});
  }
  report->fields["requests"] = std::move(list);
}

void AddWrites(const Plan &plan, Report *report) {
  Json list = Json::array();
  for (const PlannedWrite &write : plan.writes()) {
    const Change &change = write.change;
    const std::string before =
        write.before ? std::to_string(static_cast<std::int32_t>(*write.before))
                     : "nothing";
    const std::string after =
        std::to_string(static_cast<std::int32_t>(change.index));
    report->text +=
        "  file  " + cli::OneLine(write.file) + "\n        " + write.key +
        ": " +
        (before == after ? after + ", unchanged" : before + " -> " + after) +
        " (" + DescribedValue(*change.setting, change.channel, change.index) +
        ")\n";
    list.push_back({{"file", write.file},
                    {"key", write.key},
                    {"before", Number(write.before)},
                    {"after", Number(change.index)}});
  }
  report->fields["writes"] = std::move(list);
}

void AddAnnouncements(const Plan &plan, Report *report) {
  Json list = Json::array();
  for (const PlannedAnnouncement &announcement : plan.announcements()) {
    report->text += "  bus   \"" + announcement.name + "\"";
    Json numbers = Json::object();
    for (const auto &[key, value] : announcement.numbers) {
      report->text += "  " + key + " " + std::to_string(value);
      numbers[key] = value;
    }
    report->text += "\n";
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
