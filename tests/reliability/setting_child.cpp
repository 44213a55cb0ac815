// SPDX-License-Identifier: MIT
//
// A client that links only the library and changes one setting.
//
//   setting_child set SETTING INDEX    makes one change
//   setting_child loop SETTING ROUNDS  makes many changes; prints how often the
//                                      stored value was not the value that it
//                                      had set
//
// SETTING is a channel of the USB input audio, 0 to 4, or "boost".
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "ZTKFunc.h"

namespace {

constexpr std::uint32_t kProduct = 10;

struct Setting {
  explicit Setting(const std::string &name)
      : boost(name == "boost"), channel(boost ? 0 : std::atoi(name.c_str())) {}

  void Set(std::uint32_t index) const {
    if (boost) {
      ZTK_SetBoostLevelIndex(kProduct, index);
    } else {
      ZTK_SetUSBInputAudio(kProduct, static_cast<std::uint32_t>(channel),
                           index);
    }
  }
  std::uint32_t Get() const {
    std::uint32_t index = 0;
    if (boost) {
      ZTK_GetCurrentBoostLevelIndex(kProduct, &index);
    } else {
      ZTK_GetCurrentUSBInputAudioIndex(kProduct, channel, &index);
    }
    return index;
  }

  bool boost;
  std::int32_t channel;
};

// Reads the value twice after each change, so that other processes have time to
// replace the file in between.
int Loop(const Setting &setting, std::uint32_t rounds) {
  std::uint32_t lost = 0;
  for (std::uint32_t round = 0; round < rounds; ++round) {
    const std::uint32_t index = round % 3;
    setting.Set(index);
    const bool atOnce = setting.Get() == index;
    const bool later = setting.Get() == index;
    if (!atOnce || !later) ++lost;
  }
  std::printf("%u\n", lost);
  return 0;
}

}  // namespace

int main(int count, char **words) {
  if (count != 4) return 2;
  const std::string what = words[1];
  const Setting setting(words[2]);
  const auto number =
      static_cast<std::uint32_t>(std::strtoul(words[3], nullptr, 10));
  if (what == "loop") return Loop(setting, number);
  if (what != "set") return 2;
  setting.Set(number);
  return 0;
}
