// SPDX-License-Identifier: MIT
//
// The objects of the test double, for all its sources. No object is freed
// before the process ends, so that a use after the last release is detected.
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

// A kind of object, with a counter of its references.
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

// The references to one object.
class References {
 public:
  explicit References(const Kind &kind) : kind_(&kind) { Add(); }
  void Add();
  // Releases one reference. Returns true if it was the last one. Records misuse
  // if there was no reference.
  bool Remove();
  // Returns true if there is a reference. Otherwise records misuse and returns
  // false.
  bool Use(const char *call) const;
  const Kind &kind() const { return *kind_; }
  int count() const { return count_; }

 private:
  const Kind *kind_;
  int count_ = 0;
};

// The conditions of a matching.
struct Matching {
  std::string className;
  std::optional<std::int32_t> vendor;
  std::optional<std::int32_t> product;
};

// Returns the conditions in a dictionary that IOServiceMatching() made, and
// releases one reference to it. Records misuse and returns no value for any
// other object.
std::optional<Matching> ConsumeMatching(CFDictionaryRef dictionary);
CFMutableDictionaryRef MakeMatching(const char *className);
void ForgetObjects();

// Returns whether two identifiers are equal.
bool SameUuid(const CFUUIDBytes &first, const CFUUIDBytes &second);

// Makes the plug-in of a device: an object that starts with a pointer to its
// functions.
IOCFPlugInInterface **MakePlugIn(std::size_t position);

}  // namespace ztk::iokit

#endif  // ZTK_TESTS_MACOS_IOKIT_DOUBLE_OBJECTS_H_
