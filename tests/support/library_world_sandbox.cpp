// SPDX-License-Identifier: MIT
#include "support/library_world.h"
#include "virtual-mixer/sandbox/sandbox.h"

namespace ztk::test {

std::unique_ptr<MixerWorld> MakeWorld(const std::vector<Placement> &placements,
                                      LogSink log) {
  return std::make_unique<virtual_mixer::Sandbox>(placements, std::move(log));
}

std::string WhyNoWorld() { return ""; }

}  // namespace ztk::test
