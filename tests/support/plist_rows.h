// SPDX-License-Identifier: MIT
//
// Property lists in many forms, and whether the library reads them. Each valid
// file has the key "a" with the value 5, as a number or as a text.
#ifndef ZTK_TESTS_SUPPORT_PLIST_ROWS_H_
#define ZTK_TESTS_SUPPORT_PLIST_ROWS_H_

#include <string>
#include <vector>

namespace ztk::test {

struct FormRow {
  const char *name;
  std::string bytes;
  bool read;
  // The Linux port has the opposite result.
  bool differsOnLinux = false;
};

// Returns the ASCII text in UTF-16. `highFirst` is the byte order.
inline std::string Utf16(const std::string &text, bool highFirst) {
  std::string bytes;
  for (const char c : text) {
    bytes += highFirst ? std::string{'\0', c} : std::string{c, '\0'};
  }
  return bytes;
}

// Returns a binary file whose dictionary has the key "a" with the value
// `object`. If `again` is not empty, the dictionary has a second entry with
// this key.
inline std::string BinaryForm(const std::string &object,
                              const std::string &again = "") {
  std::vector<std::string> objects = {std::string("\xD1\x01\x02", 3),
                                      "\x51"
                                      "a",
                                      object};
  if (!again.empty()) {
    objects[0] = std::string("\xD2\x01\x01\x02\x03", 5);
    objects.push_back(again);
  }
  std::string bytes = "bplist00";
  std::string table;
  for (const std::string &part : objects) {
    table += static_cast<char>(bytes.size());
    bytes += part;
  }
  const auto count = static_cast<char>(objects.size());
  const auto at = static_cast<char>(bytes.size());
  const std::string zeros(7, '\0');
  return bytes + table + std::string(6, '\0') + "\x01\x01" + zeros + count +
         zeros + '\0' + zeros + at;
}

inline std::vector<FormRow> FormRows() {
  const std::string entry = "<key>a</key><integer>5</integer>";
  const auto xml = [](const std::string &entries) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC "
           "\"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\"><dict>" +
           entries + "</dict></plist>\n";
  };
  const auto encoded = [](const std::string &encoding, const char *text) {
    return "<?xml version=\"1.0\" encoding=\"" + encoding +
           "\"?><plist version=\"1.0\"><dict><key>a</key><string>" + text +
           "</string></dict></plist>";
  };
  const std::string whole = xml(entry);
  const std::string utf16 = encoded("UTF-16", "5");
  return {
      {"XML", whole, true},
      {"no prolog", "<plist><dict>" + entry + "</dict></plist>", true},
      {"no plist element", "<dict>" + entry + "</dict>", true},
      {"space before", " \n\t" + whole, true},
      {"a word after", whole + "word", true},
      {"a word before", "word" + whole, false},
      {"a comment", xml("<!-- a -->" + entry + "<!-- \" -->"), true},
      {"a key by number", xml("<key>&#97;</key><integer>5</integer>"), true},
      {"not closed", "<plist><dict>" + entry + "</dict>", false},
      {"upper case", "<PLIST><DICT>" + entry + "</DICT></PLIST>", false},
      {"a key without a value", xml(entry + "<key>b</key>"), false, true},
      {"a value without a key", xml(entry + "<integer>5</integer>"), false},
      {"an unknown element", xml(entry + "<key>b</key><word/>"), false},
      {"an entity that the file defines",
       "<!DOCTYPE plist [<!ENTITY x \"5\">]><plist><dict><key>a</key>"
       "<string>&x;</string></dict></plist>",
       false},
      {"an array", "<plist><array>" + entry + "</array></plist>", false},
      {"nothing", "", false},
      {"a word", "word", false},
      {"JSON", "{\"a\": 5}", false},
      {"the older form", "{ a = 5; }", true, true},
      {"the older form of texts", "\"a\" = \"5\";\n", true, true},
      {"UTF-8 with a mark", "\xEF\xBB\xBF" + whole, true},
      {"invalid UTF-8", xml("<key>a</key><string>5\xE4</string>"), false, true},
      {"UTF-16, low byte first", "\xFF\xFE" + Utf16(utf16, false), true},
      {"UTF-16, high byte first", "\xFE\xFF" + Utf16(utf16, true), true},
      {"UTF-16, low byte first, no mark", Utf16(utf16, false), false, true},
      {"UTF-16, high byte first, no mark", Utf16(utf16, true), false, true},
      {"ISO 8859-1", encoded("ISO-8859-1", "5\xE4"), true},
      {"ISO 8859-15", encoded("ISO-8859-15", "5\xA4"), true},
      {"Windows", encoded("WINDOWS-1252", "5\x80"), true},
      {"Russian", encoded("KOI8-R", "5\xC1"), true, true},
      {"an unknown encoding", encoded("X-NONE", "5"), false},
      {"binary, one byte", BinaryForm("\x10\x05"), true},
      {"binary, eight bytes",
       BinaryForm(std::string("\x13\x00\x00\x00\x01\x00\x00\x00\x05", 9)),
       true},
      {"binary, sixteen bytes",
       BinaryForm(std::string("\x14", 1) + std::string(15, '\0') + "\x05"),
       true},
      {"binary, a text",
       BinaryForm("\x51"
                  "5"),
       true},
      // If two entries have the same key, the first one counts in this form.
      {"binary, a key twice", BinaryForm("\x10\x05", "\x10\x01"), true},
      {"binary, cut off", "bplist00\xD1\x01\x02", false},
  };
}

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_PLIST_ROWS_H_
