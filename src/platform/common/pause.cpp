// SPDX-License-Identifier: MIT
#include "platform/common/pause.h"

#include <thread>

namespace ztk::platform {

void Pause(std::chrono::microseconds time) {
  std::this_thread::sleep_for(time);
}

}  // namespace ztk::platform
