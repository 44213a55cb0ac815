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

  // Flowing text: paragraphs are parted by empty lines, and lines that start
  // with a space are shown as they are.
  void Text(const std::string &text);
  // A line on its own, of text that is marked up already.
  void Line(const std::string &markup);
  // Lines as they are, indented.
  void Verbatim(const std::string &lines);
  // A term, marked up already, with what it means beside or below it.
  void Term(const std::string &markup, const std::string &meaning);

  const std::string &text() const { return text_; }

 private:
  void Request(const std::string &request);

  std::string text_;
  // Nothing stands yet below the last heading, where no paragraph may begin.
  bool afterHeading_ = false;
};

// Text in which nothing is read as markup any more.
std::string Escaped(const std::string &text);
std::string Bold(const std::string &text);
std::string Italic(const std::string &text);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_ROFF_H_
