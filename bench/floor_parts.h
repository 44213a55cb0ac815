// SPDX-License-Identifier: MIT
//
// The two parts of the floor that have nothing to do with USB.
#ifndef ZTK_BENCH_FLOOR_PARTS_H_
#define ZTK_BENCH_FLOOR_PARTS_H_

#include <cstdint>

namespace ztk::bench::floor {

// Each: a sentence saying why it cannot, else null.
const char *PrepareSettings();
const char *PrepareBus();

// Reads the whole settings file.
void ReadSettings();
// Reads it and replaces it by one that holds the index of this channel alone.
void StoreIndex(std::uint32_t channel, std::uint32_t index);

// Announces the index over a connection of its own.
void AnnounceIndex(std::uint32_t channel, std::uint32_t index);

}  // namespace ztk::bench::floor

#endif  // ZTK_BENCH_FLOOR_PARTS_H_
