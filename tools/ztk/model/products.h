// SPDX-License-Identifier: MIT
//
// The models, as the library numbers them.
#ifndef ZTK_TOOLS_ZTK_MODEL_PRODUCTS_H_
#define ZTK_TOOLS_ZTK_MODEL_PRODUCTS_H_

#include <cstdint>
#include <string>
#include <vector>

namespace ztk::program {

// The model that is meant when nobody says another.
inline constexpr std::uint32_t kOwnProduct = 10;

// The number of a model from what follows --product: its number, or a name in
// which the library finds one. Throws a Failure that lists the models.
std::uint32_t ParseProduct(const std::string &word);

// The names of all models, in the order of their numbers.
std::vector<std::string> ProductNames();

// The name of a model that ParseProduct() can give.
std::string ProductName(std::uint32_t product);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_MODEL_PRODUCTS_H_
