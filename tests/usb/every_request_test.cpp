// SPDX-License-Identifier: MIT
//
// Tests that the requests on the recording port are the same as in the sandbox
// and on a kernel.
#include "support/every_request.h"

#include "support/core_test.h"

namespace ztk::test {
namespace {

class EveryRequest : public CoreTest {};

TEST_F(EveryRequest, IsTheSameAsOnRealDevices) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().bus[0].answers = {
      {0x8001, {.result = 0, .bytes = {0x36, 0x04}}},
      {0x8002, {.result = 0, .bytes = {0, 4, 4, 4, 4}}},
      {0x8004, {.result = 0, .bytes = {0, 0}}},
      {0x8006, {.result = 0, .bytes = {0, 0}}},
      {0x8007, {.result = 0, .bytes = {0, 0, 0, 1}}}};
  ExpectEveryRequest([] {
    std::vector<std::string> lines;
    for (const std::string &step : TakeSteps()) {
      if (step.starts_with("mixer ")) lines.push_back(step);
    }
    return lines;
  });
}

}  // namespace
}  // namespace ztk::test
