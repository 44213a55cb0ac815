// SPDX-License-Identifier: MIT
#include "ztk/model/mixers/plugged_mixers.h"

#include <algorithm>
#include <utility>

#include "ztk/system/places.h"

namespace ztk::model {

namespace {

// Adds the places that only the first list has.
void AddMissing(const std::vector<std::string> &places,
                const std::vector<std::string> &others, bool attached,
                std::vector<Plugging> *changes) {
  for (const std::string &place : places) {
    if (std::find(others.begin(), others.end(), place) == others.end()) {
      changes->push_back({.place = place, .attached = attached});
    }
  }
}

}  // namespace

PluggedMixers::PluggedMixers() : places_(MixerPlaces()) {}

std::vector<Plugging> PluggedMixers::Look() {
  std::vector<std::string> now = MixerPlaces();
  std::vector<Plugging> changes;
  AddMissing(places_, now, false, &changes);
  AddMissing(now, places_, true, &changes);
  places_ = std::move(now);
  return changes;
}

}  // namespace ztk::model
