// SPDX-License-Identifier: MIT
//
// The objects of CoreFoundation in the test double.
#include <CoreFoundation/CoreFoundation.h>

#include <cstring>
#include <deque>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "iokit_double_objects.h"

namespace ztk::iokit {
namespace {

struct Object {
  References references;
  std::string text;         // in a string; in a dictionary, the class name
  std::int32_t number = 0;  // in a number
  std::vector<std::pair<Object *, Object *>> entries;  // in a dictionary
};

std::set<const void *> &Known() {
  static std::set<const void *> known;
  return known;
}

Object *Make(Object object) {
  Object *made = Keep(std::move(object));
  Known().insert(made);
  return made;
}

// Returns the object of a reference. If there is none, records misuse and
// returns null.
Object *ObjectAt(const void *reference, const char *call) {
  if (Known().count(reference) == 0) {
    LogMisuse(std::string(call) + " on what is no object");
    return nullptr;
  }
  auto *object = static_cast<Object *>(const_cast<void *>(reference));
  return object->references.Use(call) ? object : nullptr;
}

void Remove(Object *object) {
  if (!object->references.Remove()) return;
  for (const auto &[key, value] : std::exchange(object->entries, {})) {
    Remove(key);
    Remove(value);
  }
}

}  // namespace

CFMutableDictionaryRef MakeMatching(const char *className) {
  Object *made = Make({.references = References(kDictionary),
                       .text = className,
                       .entries = {}});
  return reinterpret_cast<CFMutableDictionaryRef>(made);
}

std::optional<Matching> ConsumeMatching(CFDictionaryRef dictionary) {
  Object *object = ObjectAt(dictionary, "IOServiceGetMatchingServices");
  if (object == nullptr) return std::nullopt;
  Matching matching{.className = object->text, .vendor = {}, .product = {}};
  for (const auto &[key, value] : object->entries) {
    if (key->text == "idVendor") matching.vendor = value->number;
    if (key->text == "idProduct") matching.product = value->number;
  }
  Remove(object);
  return matching;
}

void ForgetObjects() { Known().clear(); }

bool SameUuid(const CFUUIDBytes &first, const CFUUIDBytes &second) {
  return std::memcmp(&first, &second, sizeof first) == 0;
}

}  // namespace ztk::iokit

using namespace ztk::iokit;

void CFRelease(CFTypeRef reference) {
  Object *object = ObjectAt(reference, "CFRelease");
  if (object == nullptr) return;
  LogCall(std::string("CFRelease ") + object->references.kind().name);
  Remove(object);
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef /*allocator*/,
                                      const char *text,
                                      CFStringEncoding /*encoding*/) {
  LogCall(std::string("CFStringCreateWithCString ") + text);
  return reinterpret_cast<CFStringRef>(
      Make({.references = References(kString), .text = text, .entries = {}}));
}

CFNumberRef CFNumberCreate(CFAllocatorRef /*allocator*/, CFNumberType type,
                           const void *value) {
  if (type != kCFNumberSInt32Type) LogMisuse("CFNumberCreate of another type");
  std::int32_t number = 0;
  std::memcpy(&number, value, sizeof number);
  LogCall("CFNumberCreate " + std::to_string(number));
  return reinterpret_cast<CFNumberRef>(Make({.references = References(kNumber),
                                             .text = {},
                                             .number = number,
                                             .entries = {}}));
}

void CFDictionarySetValue(CFMutableDictionaryRef dictionary, const void *key,
                          const void *value) {
  constexpr char kCall[] = "CFDictionarySetValue";
  Object *into = ObjectAt(dictionary, kCall);
  Object *name = ObjectAt(key, kCall);
  Object *entry = ObjectAt(value, kCall);
  if (into == nullptr || name == nullptr || entry == nullptr) return;
  LogCall(std::string(kCall) + " " + name->text + " " +
          std::to_string(entry->number));
  name->references.Add();
  entry->references.Add();
  into->entries.emplace_back(name, entry);
}

// A constant is never released, so its references are not counted.
CFUUIDRef CFUUIDGetConstantUUIDWithBytes(
    CFAllocatorRef /*allocator*/, UInt8 byte0, UInt8 byte1, UInt8 byte2,
    UInt8 byte3, UInt8 byte4, UInt8 byte5, UInt8 byte6, UInt8 byte7,
    UInt8 byte8, UInt8 byte9, UInt8 byte10, UInt8 byte11, UInt8 byte12,
    UInt8 byte13, UInt8 byte14, UInt8 byte15) {
  static std::deque<CFUUIDBytes> constants;
  const CFUUIDBytes bytes{byte0,  byte1,  byte2,  byte3, byte4,  byte5,
                          byte6,  byte7,  byte8,  byte9, byte10, byte11,
                          byte12, byte13, byte14, byte15};
  for (const CFUUIDBytes &constant : constants) {
    if (SameUuid(constant, bytes)) {
      return reinterpret_cast<CFUUIDRef>(&constant);
    }
  }
  return reinterpret_cast<CFUUIDRef>(&constants.emplace_back(bytes));
}

CFUUIDBytes CFUUIDGetUUIDBytes(CFUUIDRef uuid) {
  return *reinterpret_cast<const CFUUIDBytes *>(uuid);
}
