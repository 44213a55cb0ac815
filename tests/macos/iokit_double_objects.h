// SPDX-License-Identifier: MIT
//
// What the parts of the double share: every object that was ever handed out,
// kept until the process ends so that a use after the last release is seen.
#ifndef ZTK_TESTS_MACOS_IOKIT_DOUBLE_OBJECTS_H_
#define ZTK_TESTS_MACOS_IOKIT_DOUBLE_OBJECTS_H_

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOCFPlugIn.h>

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

#include "iokit_double.h"

namespace ztk::iokit {

template <typename Object>
Object *Keep(Object object) {
  static std::deque<Object> kept;
  return &kept.emplace_back(std::move(object));
}

// One kind of thing that can be held.
struct Kind {
  const char *name;
  int Held::*held;
};
inline constexpr Kind kPort{"master port", &Held::ports};
inline constexpr Kind kDictionary{"dictionary", &Held::dictionaries};
inline constexpr Kind kNumber{"number", &Held::numbers};
inline constexpr Kind kString{"string", &Held::strings};
inline constexpr Kind kIterator{"iterator", &Held::iterators};
inline constexpr Kind kService{"service", &Held::services};
inline constexpr Kind kPlugIn{"plug-in", &Held::plugIns};
inline constexpr Kind kInterface{"interface", &Held::interfaces};

// The references on one object.
class References {
 public:
  explicit References(const Kind &kind) : kind_(&kind) { Add(); }
  void Add();
  // True when this was the last one. One too many is misuse.
  bool Remove();
  // False, and misuse, when there is none left.
  bool Use(const char *call) const;
  const Kind &kind() const { return *kind_; }
  int count() const { return count_; }

 private:
  const Kind *kind_;
  int count_ = 0;
};

// What a matching asks for.
struct Matching {
  std::string className;
  std::optional<std::int32_t> vendor;
  std::optional<std::int32_t> product;
};

// The contents of a dictionary that IOServiceMatching() made, one reference of
// which goes back; nothing, and misuse, for anything else.
std::optional<Matching> ConsumeMatching(CFDictionaryRef dictionary);
CFMutableDictionaryRef MakeMatching(const char *className);
void ForgetObjects();

// Whether two names are the same one.
bool SameUuid(const CFUUIDBytes &first, const CFUUIDBytes &second);

// The loader of a device's interface: a pointer to its functions, as C sees it.
IOCFPlugInInterface **MakePlugIn(std::size_t position);

}  // namespace ztk::iokit

#endif  // ZTK_TESTS_MACOS_IOKIT_DOUBLE_OBJECTS_H_
