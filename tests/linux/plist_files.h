// SPDX-License-Identifier: MIT
//
// Makes valid and invalid property lists for tests.
#ifndef ZTK_TESTS_LINUX_PLIST_FILES_H_
#define ZTK_TESTS_LINUX_PLIST_FILES_H_

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ztk::test {

inline std::string Repeat(std::string_view part, std::size_t times) {
  std::string all;
  for (std::size_t i = 0; i < times; ++i) all += part;
  return all;
}

// Returns an XML file whose dictionary has these entries.
inline std::string Xml(const std::string &entries) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
         "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
         "<plist version=\"1.0\">\n<dict>\n" +
         entries + "</dict>\n</plist>\n";
}

inline std::string BigEndian(std::uint64_t number, int length) {
  std::string bytes;
  for (int i = length - 1; i >= 0; --i) {
    bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
  }
  return bytes;
}

// A binary file with these objects. By default the first object is the root,
// and a reference has two bytes. A test may set wrong fields of the trailer.
struct Binary {
  std::vector<std::string> objects;
  std::uint64_t root = 0;
  int offsetSize = 4;
  int referenceSize = 2;
  std::uint64_t countError = 0;
  std::uint64_t tableError = 0;

  std::string Bytes() const {
    std::string bytes = "bplist00";
    std::string table;
    for (const std::string &object : objects) {
      table += BigEndian(bytes.size(), offsetSize);
      bytes += object;
    }
    const std::uint64_t tableAt = bytes.size() + tableError;
    return bytes + table + std::string(6, '\0') +
           static_cast<char>(offsetSize) + static_cast<char>(referenceSize) +
           BigEndian(objects.size() + countError, 8) + BigEndian(root, 8) +
           BigEndian(tableAt, 8);
  }
};

// Returns a binary text of at most 14 ASCII bytes.
inline std::string AsciiObject(const std::string &text) {
  return static_cast<char>(0x50 + text.size()) + text;
}

// Returns a binary text of at most 14 UTF-16 units.
inline std::string Utf16Object(const std::vector<std::uint16_t> &units) {
  std::string object(1, static_cast<char>(0x60 + units.size()));
  for (const std::uint16_t unit : units) object += BigEndian(unit, 2);
  return object;
}

// Returns a binary array (marker 0xA0) or dictionary (0xD0: keys, then values)
// of at most 14 entries.
inline std::string ContainerObject(unsigned marker,
                                   const std::vector<std::uint16_t> &indexes) {
  const std::size_t count =
      marker == 0xD0 ? indexes.size() / 2 : indexes.size();
  std::string object(1, static_cast<char>(marker + count));
  for (const std::uint16_t index : indexes) object += BigEndian(index, 2);
  return object;
}

// Returns a binary file whose dictionary has one entry, "a".
inline std::string BinaryWith(const std::string &valueObject) {
  return Binary{
      .objects = {ContainerObject(0xD0, {1, 2}), AsciiObject("a"), valueObject}}
      .Bytes();
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_LINUX_PLIST_FILES_H_
