// SPDX-License-Identifier: MIT
//
// The same four operations with libusb: each call starts libusb, lists the
// devices once, sends requests to every mixer in the list, and ends libusb. The
// code for the settings file and the announcement, which do not use USB, is
// that of the floor.
#ifndef ZTK_BENCH_LIBUSB_WAY_H_
#define ZTK_BENCH_LIBUSB_WAY_H_

#include <cstdint>
#include <iterator>

#include "floor.h"
#include "operations.h"

namespace ztk::bench::libusb_way {

// Do the same as the functions in floor.h. Return -1 if libusb does not start.
// Set() and Apply() need floor::Prepare().
int Count();
int Set(std::uint32_t channel, std::uint32_t index, std::uint16_t value);
int Query(std::uint32_t channel);
int Apply(std::uint16_t value);

// The functions in the order of kOperations.
inline constexpr bool (*kCalls[])(std::uint32_t turn) = {
    [](std::uint32_t) { return Count() > 0; },
    [](std::uint32_t turn) {
      return Set(kChannel, kChoices[turn], kValues[turn]) > 0;
    },
    [](std::uint32_t) { return Query(kChannel) >= 0; },
    [](std::uint32_t) { return Apply(kValues[0]) > 0; },
};
static_assert(std::size(kCalls) == std::size(kOperations));

}  // namespace ztk::bench::libusb_way

#endif  // ZTK_BENCH_LIBUSB_WAY_H_
