// SPDX-License-Identifier: MIT
//
// Noticing mixers that are plugged in and unplugged.
#ifndef ZTK_TOOLS_ZTK_MODEL_PLUGGED_MIXERS_H_
#define ZTK_TOOLS_ZTK_MODEL_PLUGGED_MIXERS_H_

#include <cstddef>
#include <string>
#include <vector>

namespace ztk::model {

struct Plugging {
  std::string place;  // the system's name of the port
  bool attached;      // false: it is gone
};

// Knows the mixers that were attached when it last looked.
class PluggedMixers {
 public:
  PluggedMixers();

  // Looks again, without asking a mixer anything. Returns what has changed,
  // mixers that are gone first.
  std::vector<Plugging> Look();
  std::size_t count() const { return places_.size(); }

 private:
  std::vector<std::string> places_;
};

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_PLUGGED_MIXERS_H_
