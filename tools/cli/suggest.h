// SPDX-License-Identifier: MIT
//
// What somebody meant who typed a word that there is not.
#ifndef ZTK_TOOLS_CLI_SUGGEST_H_
#define ZTK_TOOLS_CLI_SUGGEST_H_

#include <cstdint>
#include <string>
#include <vector>

namespace ztk::cli {

// The accepted word of which the other is a slip: it may be a part of it, a few
// letters may be missing, too many, wrong or swapped; case does not count.
// Empty when it is too far from each, as that would be no more than a guess.
std::string Nearest(const std::string &word,
                    const std::vector<std::string> &accepted);

// "; nearest: input; accepted: status, input"; the nearest only where there is
// one, and nothing where nothing is accepted.
std::string NearestAndAccepted(const std::string &word,
                               const std::vector<std::string> &accepted);

// "; nearest: 5; accepted: 1 to 5", for a word that shall be a number.
std::string NearestAndAccepted(const std::string &word, std::uint32_t least,
                               std::uint32_t most);

}  // namespace ztk::cli

#endif  // ZTK_TOOLS_CLI_SUGGEST_H_
