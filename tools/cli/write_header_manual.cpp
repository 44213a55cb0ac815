// SPDX-License-Identifier: MIT
//
// Writes the manual page of the library from the comments of its header. It
// runs while the project is built and is not installed.
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

#include "cli/header_comments.h"
#include "cli/roff.h"

namespace {

using ztk::cli::Bold;
using ztk::cli::Entry;
using ztk::cli::Escaped;
using ztk::cli::HeaderComments;
using ztk::cli::HeaderGroup;
using ztk::cli::Italic;
using ztk::cli::Named;
using ztk::cli::Page;

constexpr int kFunctionsSection = 3;

// The marks of the comments' language, which a page has no use for.
std::string Plain(const std::string &text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text.compare(i, 2, "**") == 0) {
      ++i;
    } else if (text[i] != '`') {
      plain += text[i];
    }
  }
  return plain;
}

void AddEntry(const Entry &entry, Page *page) {
  page->Subsection(entry.name);
  page->Line(Bold(entry.declaration));
  page->Text("\n" + Plain(entry.text));
  for (const Named &parameter : entry.parameters) {
    page->Term(Italic(parameter.name), Plain(parameter.text));
  }
  for (const Named &result : entry.results) {
    page->Term(Bold(result.name), Plain(result.text));
  }
  if (!entry.note.empty()) page->Text("\n" + Plain(entry.note));
}

std::string UpperCase(std::string text) {
  for (char &character : text) {
    const bool lower = character >= 'a' && character <= 'z';
    if (lower) character = static_cast<char>(character - 'a' + 'A');
  }
  return text;
}

std::string HeaderPage(const HeaderComments &comments, const std::string &date,
                       const std::string &source) {
  Page page("ZTKFUNC", kFunctionsSection, date, source);
  page.Section("NAME");
  page.Line("ZTKFunc \\- settings of the USB DJ mixer VRM\\-D6");
  page.Section("LIBRARY");
  page.Line("ZTKFunc (" + Escaped("libZTKFunc, -lZTKFunc") + ")");
  page.Section("SYNOPSIS");
  page.Line(Bold("#include <ZTKFunc.h>"));
  for (const HeaderGroup &group : comments.groups) {
    for (const Entry &entry : group.entries) {
      if (entry.name.starts_with("ZTK_") && entry.declaration.front() != '#') {
        page.Line(Bold(entry.declaration));
      }
    }
  }
  page.Section("DESCRIPTION");
  page.Text(Plain(comments.text));
  for (const HeaderGroup &group : comments.groups) {
    page.Section(UpperCase(group.title));
    page.Text(Plain(group.text));
    for (const Entry &entry : group.entries) AddEntry(entry, &page);
  }
  page.Section("SEE ALSO");
  page.Line(Bold("ztk") + "(1),\n" + Bold("ztk-virtual-mixer") + "(1)");
  return page.text();
}

}  // namespace

int main(int argc, char **argv) {
  if (argc != 5) {
    std::cerr << "usage: write-header-manual HEADER PAGE DATE SOURCE\n";
    return 2;
  }
  try {
    std::ifstream header(argv[1], std::ios::binary);
    std::ostringstream text;
    text << header.rdbuf();
    std::ofstream page(argv[2], std::ios::binary);
    page << HeaderPage(ztk::cli::ReadHeader(text.str()), argv[3], argv[4]);
    page.close();
    if (header && page) return 0;
    std::cerr << "write-header-manual: cannot read " << argv[1] << " or write "
              << argv[2] << "\n";
  } catch (const std::exception &error) {
    std::cerr << "write-header-manual: " << error.what() << "\n";
  }
  return 1;
}
