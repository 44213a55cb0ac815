// SPDX-License-Identifier: MIT
#include "ztk/report/silence_report.h"

#include "ZTKFunc.h"

namespace ztk::program {

void AddSilence(const std::vector<SilentRouting> &silent, bool namesMixers,
                Report *report) {
  report->fields["silent"] = Json::array();
  for (const SilentRouting &routing : silent) {
    report->text += Described(routing, namesMixers) + "\n";
    report->fields["silent"].push_back({{"mixer", routing.mixer},
                                        {"channel", routing.channel + 1},
                                        {"position", routing.position},
                                        {"needed", ZTK_SELECTOR_AUDIBLE}});
  }
}

}  // namespace ztk::program
