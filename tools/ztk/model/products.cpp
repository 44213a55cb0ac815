// SPDX-License-Identifier: MIT
#include "ztk/model/products.h"

#include "api/product.h"
#include "cli/strings.h"
#include "ztk/system/text.h"

namespace ztk::model {

namespace {

const Product *Find(std::uint32_t id) {
  for (const Product &product : Products()) {
    if (product.id == id) return &product;
  }
  return nullptr;
}

}  // namespace

const std::vector<Product> &Products() {
  static const std::vector<Product> products = [] {
    std::vector<Product> made;
    for (const auto &[name, id] : product::kModels) {
      made.push_back({.id = id, .name = Utf8(name)});
    }
    return made;
  }();
  return products;
}

std::optional<std::uint32_t> FindProduct(const std::string &word) {
  const auto number = cli::ParseNumber(word);
  if (number && Find(*number) != nullptr) return number;
  std::uint32_t id = 0;
  const ZTKResult result = WithText(
      word, [&id](ZTKTextRef name) { return ZTK_GetProductId(name, &id); });
  if (result != ZTK_SUCCESS) return std::nullopt;
  return id;
}

std::string ProductName(std::uint32_t product) {
  const Product *found = Find(product);
  return found == nullptr ? std::to_string(product) : found->name;
}

}  // namespace ztk::model
