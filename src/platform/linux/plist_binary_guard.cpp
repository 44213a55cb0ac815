// SPDX-License-Identifier: MIT
//
// The scan of binary property lists. Such a file has a head of 8 bytes, the
// objects, a table of their offsets, and a trailer of 32 bytes. Arrays and
// dictionaries refer to their contents by index in the table.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/linux/plist_guards.h"

namespace ztk::platform::property_list {
namespace {

using std::string_view;

constexpr std::size_t kHeadSize = 8;
constexpr std::size_t kTrailerSize = 32;
// The largest distance of a date from 2001, in seconds: about 30,000 years.
constexpr double kFarthestDate = 1e12;

// The type of an object is in the upper four bits of its marker byte.
enum ObjectType : unsigned {
  kSimple = 0x0,
  kInteger = 0x1,
  kReal = 0x2,
  kDate = 0x3,
  kData = 0x4,
  kAsciiText = 0x5,
  kUtf16Text = 0x6,
  kUid = 0x8,
  kArray = 0xA,
  kDictionary = 0xD
};

class BinaryScan {
 public:
  explicit BinaryScan(string_view bytes) : bytes_(bytes) {}

  bool IsSafe() { return ReadTrailer() && Visit(root_, 1); }

 private:
  // The expanded size of an object with its contents.
  struct Extent {
    enum { Unseen, Open, Closed } state = Unseen;
    std::size_t height = 0;
    std::size_t nodes = 1;
    std::size_t bytes = 0;
  };
  // An object as its marker describes it. The contents start at `begin`.
  struct Object {
    unsigned type;
    std::uint64_t size;  // the lower four bits of the marker, or the number
                         // that follows the marker
    std::size_t begin;
  };

  std::uint64_t Number(std::size_t at, std::size_t length) const {
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < length; ++i) {
      number = number << 8U | static_cast<std::uint8_t>(bytes_[at + i]);
    }
    return number;
  }

  // Returns true if `count` items of `itemSize` bytes fit between the start of
  // the contents and the offset table.
  bool Fits(const Object &object, std::uint64_t count,
            std::size_t itemSize) const {
    return count <= (table_ - object.begin) / itemSize;
  }

  bool ReadTrailer();
  bool ReadObject(std::size_t index, Object *object) const;
  bool VisitBytes(const Object &object, std::size_t unit, Extent *extent);
  bool VisitLeaf(const Object &object, Extent *extent);
  bool VisitReferences(const Object &object, std::size_t level, Extent *extent);
  bool Visit(std::size_t index, std::size_t level);

  string_view bytes_;
  std::size_t table_ = 0;
  std::size_t offsetSize_ = 0;
  std::size_t referenceSize_ = 0;
  std::size_t root_ = 0;
  std::vector<Extent> extents_;
  // The number of references and of bytes in texts and data that were scanned
  // so far. They have the limits of the expanded size, so the scan takes a
  // limited time even if objects overlap.
  std::size_t references_ = 0;
  std::size_t leafBytes_ = 0;
};

bool BinaryScan::ReadTrailer() {
  if (bytes_.size() < kHeadSize + kTrailerSize) return false;
  const std::size_t trailer = bytes_.size() - kTrailerSize;
  offsetSize_ = Number(trailer + 6, 1);
  referenceSize_ = Number(trailer + 7, 1);
  const std::uint64_t count = Number(trailer + 8, 8);
  const std::uint64_t root = Number(trailer + 16, 8);
  const std::uint64_t table = Number(trailer + 24, 8);
  if (offsetSize_ < 1 || offsetSize_ > 8) return false;
  if (referenceSize_ < 1 || referenceSize_ > 8) return false;
  if (count > kMaxNodes || root >= count) return false;
  if (table < kHeadSize || table > trailer) return false;
  if (count > (trailer - table) / offsetSize_) return false;
  table_ = table;
  root_ = root;
  extents_.resize(count);
  return true;
}

bool BinaryScan::ReadObject(std::size_t index, Object *object) const {
  const std::uint64_t offset =
      Number(table_ + index * offsetSize_, offsetSize_);
  if (offset < kHeadSize || offset >= table_) return false;
  const auto marker = static_cast<unsigned>(Number(offset, 1));
  *object = {.type = marker >> 4U, .size = marker & 0xFU, .begin = offset + 1};

  const bool counted = object->type == kData || object->type == kAsciiText ||
                       object->type == kUtf16Text || object->type == kArray ||
                       object->type == kDictionary;
  if (!counted || object->size != 0xF) return true;
  // A count that does not fit into the marker follows as an integer.
  if (object->begin >= table_) return false;
  const std::uint64_t sizeMarker = Number(object->begin, 1);
  if (sizeMarker < 0x10 || sizeMarker > 0x13) return false;
  const std::size_t sizeLength = std::size_t{1} << (sizeMarker & 0xFU);
  ++object->begin;
  if (!Fits(*object, 1, sizeLength)) return false;
  object->size = Number(object->begin, sizeLength);
  object->begin += sizeLength;
  return true;
}

// Visits a text or data with items of `unit` bytes. A text must not contain a
// NUL.
bool BinaryScan::VisitBytes(const Object &object, std::size_t unit,
                            Extent *extent) {
  if (!Fits(object, object.size, unit)) return false;
  extent->bytes = object.size * unit;
  leafBytes_ += extent->bytes;
  if (leafBytes_ > kMaxExpandedBytes) return false;
  if (object.type == kData) return true;
  for (std::size_t i = 0; i < object.size; ++i) {
    if (Number(object.begin + unit * i, unit) == 0) return false;
  }
  return true;
}

bool BinaryScan::VisitLeaf(const Object &object, Extent *extent) {
  constexpr std::uint64_t kFalse = 8;
  constexpr std::uint64_t kTrue = 9;
  switch (object.type) {
    case kSimple:
      return object.size == kFalse || object.size == kTrue;
    case kInteger:
      return object.size <= 4 && Fits(object, 1, std::size_t{1} << object.size);
    case kReal:
      return (object.size == 2 || object.size == 3) &&
             Fits(object, 1, std::size_t{1} << object.size);
    case kDate:
      // NaN is refused too, because the comparison is false for it.
      return object.size == 3 && Fits(object, 1, 8) &&
             std::fabs(std::bit_cast<double>(Number(object.begin, 8))) <=
                 kFarthestDate;
    case kUid:
      return object.size < 8 && Fits(object, object.size + 1, 1);
    case kData:
    case kAsciiText:
      return VisitBytes(object, 1, extent);
    case kUtf16Text:
      // libplist refuses an empty text.
      return object.size > 0 && VisitBytes(object, 2, extent);
    default:
      return false;
  }
}

bool BinaryScan::VisitReferences(const Object &object, std::size_t level,
                                 Extent *extent) {
  if (level > kMaxDepth) return false;
  const std::size_t itemSize =
      object.type == kDictionary ? 2 * referenceSize_ : referenceSize_;
  if (!Fits(object, object.size, itemSize)) return false;
  const std::size_t count = object.size * (itemSize / referenceSize_);
  references_ += count;
  if (references_ > kMaxNodes) return false;

  extent->height = 1;
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t index =
        Number(object.begin + i * referenceSize_, referenceSize_);
    if (index >= extents_.size() || !Visit(index, level + 1)) return false;
    const Extent &content = extents_[index];
    extent->height = std::max(extent->height, content.height + 1);
    extent->nodes += content.nodes;
    extent->bytes += content.bytes;
    if (extent->nodes > kMaxNodes || extent->bytes > kMaxExpandedBytes) {
      return false;
    }
  }
  return true;
}

// Scans an object and stores its expanded size. Each object is scanned once.
// The recursion ends at kMaxDepth.
bool BinaryScan::Visit(std::size_t index, std::size_t level) {
  Extent extent = extents_[index];
  if (extent.state == Extent::Open) return false;  // contains itself
  if (extent.state == Extent::Closed) {
    return level + extent.height <= kMaxDepth + 1;
  }

  Object object = {};
  if (!ReadObject(index, &object)) return false;
  extents_[index].state = Extent::Open;
  const bool container = object.type == kArray || object.type == kDictionary;
  const bool safe = container ? VisitReferences(object, level, &extent)
                              : VisitLeaf(object, &extent);
  extent.state = Extent::Closed;
  extents_[index] = extent;
  return safe;
}

}  // namespace

bool IsSafeBinary(string_view bytes) {
  return bytes.size() <= kMaxFileSize && IsBinary(bytes) &&
         BinaryScan(bytes).IsSafe();
}

}  // namespace ztk::platform::property_list
