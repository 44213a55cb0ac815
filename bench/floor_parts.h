// SPDX-License-Identifier: MIT
//
// The two parts of the floor that do not use USB.
#ifndef ZTK_BENCH_FLOOR_PARTS_H_
#define ZTK_BENCH_FLOOR_PARTS_H_

#include <cstdint>

namespace ztk::bench::floor {

// These functions return the reason of a failure, or null.
const char *PrepareSettings();
const char *PrepareBus();

// Reads the whole settings file.
void ReadSettings();
// Reads the file and replaces it by one with the index of this channel only.
void StoreIndex(std::uint32_t channel, std::uint32_t index);

// Announces the index. Uses a new connection for each call.
void AnnounceIndex(std::uint32_t channel, std::uint32_t index);

}  // namespace ztk::bench::floor

#endif  // ZTK_BENCH_FLOOR_PARTS_H_
