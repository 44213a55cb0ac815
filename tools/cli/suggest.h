// SPDX-License-Identifier: MIT
//
// Suggests the accepted word that is closest to a mistyped one.
#ifndef ZTK_TOOLS_CLI_SUGGEST_H_
#define ZTK_TOOLS_CLI_SUGGEST_H_

#include <cstdint>
#include <string>
#include <vector>

namespace ztk::cli {

// The accepted word that is closest to `word`: a part of it, or the same with a
// few letters missing, added, replaced or swapped. Upper and lower case do not
// differ. Empty when each accepted word differs too much.
std::string Nearest(const std::string &word,
                    const std::vector<std::string> &accepted);

// "; nearest: input; accepted: status, input". Without the nearest when there
// is none; empty when nothing is accepted.
std::string NearestAndAccepted(const std::string &word,
                               const std::vector<std::string> &accepted);

// "; nearest: 5; accepted: 1 to 5", for a word that has to be a number.
std::string NearestAndAccepted(const std::string &word, std::uint32_t least,
                               std::uint32_t most);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_SUGGEST_H_
