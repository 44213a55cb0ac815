// SPDX-License-Identifier: MIT
#include "ztk/model/products.h"

#include <vector>

#include "cli/strings.h"
#include "cli/suggest.h"
#include "ztk/report.h"
#include "ztk/system/text.h"

namespace ztk::program {

namespace {

struct Product {
  std::uint32_t id;
  const char *name;
};

// The numbering has gaps at 7 and 9.
constexpr Product kProducts[] = {
    {.id = 0, .name = "VRM-Q8X"}, {.id = 1, .name = "VRM-K2"},
    {.id = 2, .name = "VRM-Q8S"}, {.id = 3, .name = "VRC-H7"},
    {.id = 4, .name = "VRM-Q9"},  {.id = 5, .name = "VRM-L4"},
    {.id = 6, .name = "VRM-E3"},  {.id = 8, .name = "VRM-B5"},
    {.id = 10, .name = "VRM-D6"}};

const Product *Find(std::uint32_t id) {
  for (const Product &product : kProducts) {
    if (product.id == id) return &product;
  }
  return nullptr;
}

}  // namespace

std::uint32_t ParseProduct(const std::string &word) {
  if (const auto number = cli::ParseNumber(word); number && Find(*number)) {
    return *number;
  }
  std::uint32_t id = 0;
  const ZTKResult result = WithText(
      word, [&id](ZTKTextRef name) { return ZTK_GetProductId(name, &id); });
  if (result == ZTK_SUCCESS) return id;

  std::vector<std::string> accepted;
  for (const Product &product : kProducts) {
    accepted.push_back(std::to_string(product.id) + " " + product.name);
  }
  const std::string nearest = cli::Nearest(word, ProductNames());
  throw Failure(ExitCode::Usage,
                "no model " + cli::Quoted(word) +
                    (nearest.empty() ? "" : "; nearest: " + nearest) +
                    "; accepted, by number or name: " + cli::Listed(accepted));
}

std::vector<std::string> ProductNames() {
  std::vector<std::string> names;
  for (const Product &product : kProducts) names.emplace_back(product.name);
  return names;
}

std::string ProductName(std::uint32_t product) {
  const Product *found = Find(product);
  return found == nullptr ? std::to_string(product) : found->name;
}

}  // namespace ztk::program
