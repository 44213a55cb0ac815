// SPDX-License-Identifier: MIT
#include "ztk/model/mixers/in_parallel.h"

#include <system_error>
#include <thread>
#include <vector>

namespace ztk::model {

void InParallel(std::size_t count,
                const std::function<void(std::size_t)> &function) {
  std::vector<std::thread> threads;
  threads.reserve(count);
  for (std::size_t i = 0; i + 1 < count; ++i) {
    try {
      threads.emplace_back(function, i);
    } catch (const std::system_error &) {
      function(i);
    }
  }
  if (count > 0) function(count - 1);
  for (std::thread &thread : threads) thread.join();
}

}  // namespace ztk::model
