// SPDX-License-Identifier: MIT
//
// Detects mixers that are plugged in and unplugged.
#ifndef ZTK_TOOLS_ZTK_MODEL_MIXERS_PLUGGED_MIXERS_H_
#define ZTK_TOOLS_ZTK_MODEL_MIXERS_PLUGGED_MIXERS_H_

#include <cstddef>
#include <string>
#include <vector>

namespace ztk::model {

struct Plugging {
  std::string place;  // the system's name of the port
  bool attached;      // false: it was unplugged
};

// Stores which mixers were attached at the last call of Look().
class PluggedMixers {
 public:
  PluggedMixers();

  // Lists the mixers again, without sending requests. Returns the changes,
  // unplugged mixers first.
  std::vector<Plugging> Look();
  std::size_t count() const { return places_.size(); }

 private:
  std::vector<std::string> places_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_MIXERS_PLUGGED_MIXERS_H_
