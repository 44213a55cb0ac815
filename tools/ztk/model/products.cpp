// SPDX-License-Identifier: MIT
#include "ztk/model/products.h"

#include <algorithm>

#include "api/product.h"
#include "cli/strings.h"
#include "ztk/system/library_text.h"
#include "ztk/system/places.h"
#include "ztk/system/usb_devices.h"

namespace ztk::model {

namespace {

const Product *Find(std::uint32_t id) {
  for (const Product &product : Products()) {
    if (product.id == id) return &product;
  }
  return nullptr;
}

// Letters and digits in lower case: "VRM-B5", "vrm b5" and "vrmb5" are the
// same.
std::string Folded(const std::string &name) {
  std::string folded;
  for (const char character : cli::LowerCase(name)) {
    const bool letter = character >= 'a' && character <= 'z';
    const bool digit = character >= '0' && character <= '9';
    if (letter || digit) folded += character;
  }
  return folded;
}

// Finds a model by its name, or by the part after the dash.
const Product *FindTyped(const std::string &word) {
  const std::string typed = Folded(word);
  for (const Product &product : Products()) {
    const std::size_t dash = product.name.find('-');
    if (typed == Folded(product.name) ||
        typed == Folded(product.name.substr(dash + 1))) {
      return &product;
    }
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
  if (const Product *product = FindTyped(word)) return product->id;
  std::uint32_t id = 0;
  const ZTKResult result = WithText(
      word, [&id](ZTKTextRef name) { return ZTK_GetProductId(name, &id); });
  if (result != ZTK_SUCCESS) return std::nullopt;
  return id;
}

std::vector<std::uint32_t> AttachedProducts() {
  const std::vector<std::string> places = MixerPlaces();
  std::vector<std::uint32_t> products;
  if (places.empty()) return products;
  for (const UsbDevice &device : UsbDevices()) {
    if (std::find(places.begin(), places.end(), device.place) == places.end()) {
      continue;
    }
    const Product *product = FindTyped(device.product);
    if (product != nullptr && std::find(products.begin(), products.end(),
                                        product->id) == products.end()) {
      products.push_back(product->id);
    }
  }
  return products;
}

std::string ProductName(std::uint32_t product) {
  const Product *found = Find(product);
  return found == nullptr ? std::to_string(product) : found->name;
}

}  // namespace ztk::model
