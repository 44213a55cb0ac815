// SPDX-License-Identifier: MIT
//
// ztk asks all mixers at the same time, one thread for each. Runs in a sandbox
// with three mixers, one of which does not answer.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "ztk/model/mixers/mixer_status.h"
#include "ztk/model/mixers/reach.h"

namespace ztk::model {
namespace {

using testing::ElementsAre;

std::vector<std::string> Reasons(const std::vector<MixerStatus> &mixers) {
  std::vector<std::string> reasons;
  for (const MixerStatus &mixer : mixers) {
    reasons.push_back(mixer.answers() ? "answered" : mixer.mixer.reason);
  }
  return reasons;
}

TEST(MixersInParallel, AreAskedForTheirStatus) {
  const std::vector<MixerStatus> mixers = AskEveryMixer();
  EXPECT_THAT(Reasons(mixers), ElementsAre("answered", "silent", "answered"));
  EXPECT_EQ(mixers.at(2).firmware.value, 0x0436);
}

TEST(MixersInParallel, AreAskedForTheirSelectors) {
  EXPECT_THAT(Reasons(AskForSelectors()),
              ElementsAre("answered", "silent", "answered"));
}

TEST(MixersInParallel, AreAskedWhetherTheyAnswer) {
  const Reach reach = AskMixers(MixerPlaces());
  EXPECT_EQ(reach.found(), 3U);
  EXPECT_EQ(reach.answered(), 2U);
}

}  // namespace
}  // namespace ztk::model
