// SPDX-License-Identifier: MIT
//
// Writing manual pages in the man(7) language.
#ifndef ZTK_TOOLS_CLI_ROFF_H_
#define ZTK_TOOLS_CLI_ROFF_H_

#include <string>

namespace ztk::cli {

class Page {
 public:
  // The date is written as YYYY-MM-DD, the source as "ZTKFunc 1.0.0".
  Page(const std::string &title, int section, const std::string &date,
       const std::string &source);

  void Section(const std::string &title);
  void Subsection(const std::string &title);

  // Paragraphs, separated by empty lines. Lines that start with a space are
  // shown unchanged.
  void Text(const std::string &text);
  // A paragraph of one line, which contains markup.
  void Line(const std::string &markup);
  // Indented lines that are not filled.
  void Verbatim(const std::string &lines);
  // A term, which contains markup, and its meaning beside or below it.
  void Term(const std::string &markup, const std::string &meaning);

  const std::string &text() const { return text_; }

 private:
  void Request(const std::string &request);

  std::string text_;
  // No paragraph request may follow a heading directly.
  bool afterHeading_ = false;
};

// Text in which roff finds no markup.
std::string Escaped(const std::string &text);
std::string Bold(const std::string &text);
std::string Italic(const std::string &text);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_ROFF_H_
