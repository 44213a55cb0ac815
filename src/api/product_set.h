// SPDX-License-Identifier: MIT
//
// The set of models that a function serves.
#ifndef ZTK_API_PRODUCT_SET_H_
#define ZTK_API_PRODUCT_SET_H_

#include <cstdint>
#include <initializer_list>

namespace ztk {

// A set of product ids from 0 to 31. No set contains a larger id.
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

// Returns whether the number is one of `count` channels. The number is tested
// as a signed one: if its highest bit is set, it is negative and no channel.
constexpr bool IsChannel(std::uint32_t channel, std::int32_t count) {
  const auto number = static_cast<std::int32_t>(channel);
  return number >= 0 && number < count;
}

}  // namespace ztk

#endif  // ZTK_API_PRODUCT_SET_H_
