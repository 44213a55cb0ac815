// SPDX-License-Identifier: MIT
//
// The models, as the library numbers them.
#ifndef ZTK_TOOLS_ZTK_MODEL_PRODUCTS_H_
#define ZTK_TOOLS_ZTK_MODEL_PRODUCTS_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ZTKFunc.h"

namespace ztk::model {

// The model that a command uses when the user names none.
inline constexpr std::uint32_t kOwnProduct = ZTK_PRODUCT_VRM_D6;

struct Product {
  std::uint32_t id;  // as the library numbers it
  std::string name;
};

// In the order of their numbers.
const std::vector<Product> &Products();

// The number of a model from a word of the user: its number, its name as people
// type it ("vrm b5", "b5"), or a text in which the library finds the name of a
// model. None if the word is nothing of this kind.
std::optional<std::uint32_t> FindProduct(const std::string &word);

// The models that the attached mixers call themselves, each once. A mixer that
// does not name a model that the library knows is left out.
std::vector<std::uint32_t> AttachedProducts();

// The name of a model; its number where there is no such model.
std::string ProductName(std::uint32_t product);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_MODEL_PRODUCTS_H_
