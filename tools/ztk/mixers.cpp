// SPDX-License-Identifier: MIT
#include "mixers.h"

#include <array>
#include <cstdio>

#include "advice.h"
#include "products.h"
#include "usb/mixers.h"

namespace ztk::cli {

namespace {

std::string NotOpened(int mixer) {
  return "mixer " + std::to_string(mixer) +
         " is attached but cannot be opened: " + AdviceWhenNotOpened();
}

}  // namespace

Reach LookAtMixers() {
  Reach reach{
      .found = CheckUSBAudio(kOwnProduct), .reached = {}, .notOpened = {}};
  for (int position = 0; position < reach.found; ++position) {
    const usb::OpenMixer mixer(position);
    (mixer ? reach.reached : reach.notOpened).push_back(position + 1);
  }
  return reach;
}

void AddReach(const Reach &reach, const std::string &outcome, Report *report) {
  report->fields["mixers"] = {{"found", reach.found},
                              {"reached", reach.reached.size()},
                              {"notOpened", reach.notOpened}};
  if (reach.found == 0) {
    report->problem = {.exit = ExitCode::NoMixer,
                       .message = "no mixer is attached: " + outcome};
    return;
  }
  if (reach.reached.empty()) {
    report->problem = {
        .exit = ExitCode::NoMixer,
        .message = NotOpened(reach.notOpened.front()) + "; " + outcome};
    return;
  }
  for (const int mixer : reach.notOpened) {
    report->warnings.push_back(NotOpened(mixer));
  }
}

std::string Described(usb::Code code) {
  switch (code) {
    case platform::usb::kPipeStalled:
      return "refused by the mixer";
    case platform::usb::kTimeout:
      return "no answer";
    case platform::usb::kNoDevice:
      return "the mixer has gone";
    default:
      break;
  }
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "failed, code 0x%08X",
                static_cast<unsigned>(code));
  return text.data();
}

}  // namespace ztk::cli
