// SPDX-License-Identifier: MIT
#include "cli/program.h"

namespace ztk::cli {

std::vector<std::string> NamesOf(const Option &option) {
  std::vector<std::string> names{""};
  for (const char character : option.names) {
    if (character == ',') {
      names.emplace_back();
    } else {
      names.back() += character;
    }
  }
  return names;
}

std::string KeyOf(const Option &option) { return NamesOf(option).back(); }

bool IsPosition(const Option &option) { return option.names[0] != '-'; }

}  // namespace ztk::cli
