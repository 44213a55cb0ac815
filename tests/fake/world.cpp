// SPDX-License-Identifier: MIT
#include "fake/world.h"

namespace ztk::fake {

Device Mixer() {
  Device mixer;
  mixer.answers[0x8001] = {.bytes = {0x36, 0x04}};
  mixer.answers[0x8002] = {.bytes = {0, 4, 4, 4, 4}};
  mixer.answers[0x8004] = {.bytes = {0, 0}};
  mixer.answers[0x8006] = {.bytes = {0, 0}};
  mixer.answers[0x8007] = {.bytes = {0, 0, 0, 1}};
  return mixer;
}

Device MixerAnswering(std::uint16_t reg, Answer answer) {
  Device mixer = Mixer();
  mixer.answers[reg] = std::move(answer);
  return mixer;
}

Device OtherDevice() {
  Device device;
  device.vendor = 0x1D6B;
  device.product = 2;
  return device;
}

World &CurrentWorld() {
  static World world;
  return world;
}

void LogCall(std::string call) {
  CurrentWorld().calls.push_back(std::move(call));
}

void LogStep(std::string step) {
  CurrentWorld().steps.push_back(std::move(step));
}

}  // namespace ztk::fake
