// SPDX-License-Identifier: MIT
//
// The measured operations, with the library and with the floor.
#ifndef ZTK_BENCH_OPERATIONS_H_
#define ZTK_BENCH_OPERATIONS_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "floor.h"

namespace ztk::bench {

inline constexpr std::uint32_t kProduct = 10;
inline constexpr std::uint32_t kChannel = 1;

// Two choices without a warning, and the values that the mixer receives for
// them. The calls alternate between the two choices, so that every call changes
// something.
inline constexpr std::uint32_t kChoices[2] = {2, 3};
inline constexpr std::uint16_t kValues[2] = {0x0206, 0x0207};

// Makes one call with the choice 0 or 1. Returns false if it did not reach a
// mixer.
struct Operation {
  const char *name;
  bool (*library)(std::uint32_t turn);
  bool (*floor)(std::uint32_t turn);
  bool changesSettings;
};

inline constexpr Operation kOperations[] = {
    {.name = "count",
     .library =
         [](std::uint32_t) {
           return ZTK_IsUSBConnection(kProduct) == ZTK_CONNECTED;
         },
     .floor = [](std::uint32_t) { return floor::Count() > 0; },
     .changesSettings = false},
    {.name = "set",
     .library =
         [](std::uint32_t turn) {
           return ZTK_SetUSBInputAudio(kProduct, kChannel, kChoices[turn]) ==
                  ZTK_SUCCESS;
         },
     .floor =
         [](std::uint32_t turn) {
           return floor::Set(kChannel, kChoices[turn], kValues[turn]) > 0;
         },
     .changesSettings = true},
    {.name = "query",
     .library =
         [](std::uint32_t) {
           std::uint32_t position = UINT32_MAX;
           ZTK_GetMixerInputSelectorStatus(kProduct, kChannel, &position);
           return position != UINT32_MAX;
         },
     .floor = [](std::uint32_t) { return floor::Query(kChannel) >= 0; },
     .changesSettings = false},
    {.name = "apply",
     .library =
         [](std::uint32_t) {
           return ZTK_SetCurrentUSBInputAudio(kProduct, kChannel) ==
                  ZTK_SUCCESS;
         },
     .floor = [](std::uint32_t) { return floor::Apply(kValues[0]) > 0; },
     .changesSettings = true},
};

}  // namespace ztk::bench

#endif  // ZTK_BENCH_OPERATIONS_H_
