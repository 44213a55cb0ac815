// SPDX-License-Identifier: MIT
#include "advice.h"

namespace ztk::cli {

namespace {

// Where the packages put the rule that lets the user at the seat open a mixer.
constexpr char kUdevRule[] = "/usr/lib/udev/rules.d/70-tarvix-mixer.rules";

}  // namespace

std::string AdviceWhenNotOpened() {
  std::string advice =
      "most likely you have no permission for its device node; make sure that ";
  advice += kUdevRule;
  advice += " is installed, then unplug the mixer and plug it in again";
  return advice;
}

}  // namespace ztk::cli
