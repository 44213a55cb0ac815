// SPDX-License-Identifier: MIT
//
// Which models a function serves, as data.
#ifndef ZTK_API_PRODUCT_SET_H_
#define ZTK_API_PRODUCT_SET_H_

#include <cstdint>
#include <initializer_list>

namespace ztk {

// A set of product ids, each at most 31; any larger id is in no set.
class ProductSet {
 public:
  constexpr ProductSet(std::initializer_list<std::uint32_t> ids) {
    for (const std::uint32_t id : ids) bits_ |= std::uint32_t{1} << id;
  }
  constexpr bool Has(std::uint32_t id) const {
    return id < 32 && (bits_ >> id & 1) != 0;
  }

 private:
  std::uint32_t bits_ = 0;
};

// A channel is tested as a signed number: one with its top bit set is below 0.
constexpr bool IsChannel(std::uint32_t channel, std::int32_t count) {
  const auto number = static_cast<std::int32_t>(channel);
  return number >= 0 && number < count;
}

}  // namespace ztk

#endif  // ZTK_API_PRODUCT_SET_H_
