// SPDX-License-Identifier: MIT
//
// What the comments of the public header say, so that its manual page says the
// same.
#ifndef ZTK_TOOLS_HEADER_MANUAL_HEADER_COMMENTS_H_
#define ZTK_TOOLS_HEADER_MANUAL_HEADER_COMMENTS_H_

#include <string>
#include <vector>

namespace ztk::cli {

// A parameter, or a result, with what is said of it.
struct Named {
  std::string name;
  std::string text;
};

// Text is in paragraphs, parted by empty lines.
struct Entry {
  std::string name;         // empty where a comment belongs to no declaration
  std::string declaration;  // on one line, without ZTK_EXPORT
  std::string text;
  std::vector<Named> parameters;
  std::vector<Named> results;
  std::string note;
};

struct HeaderGroup {
  std::string title;
  std::string text;
  std::vector<Entry> entries;
};

struct HeaderComments {
  std::string text;  // of the file itself
  std::vector<HeaderGroup> groups;
};

// Reads the header. Of declarations that differ by system, the ones for Linux
// are taken. Throws std::runtime_error for a comment of another form than the
// header has throughout.
HeaderComments ReadHeader(const std::string &header);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_HEADER_MANUAL_HEADER_COMMENTS_H_
