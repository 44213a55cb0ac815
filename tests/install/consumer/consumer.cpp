// SPDX-License-Identifier: MIT
//
// A C++ program that uses the library. Exits with 0 when the results are as
// documented.
#include <ZTKFunc.h>

#include <cstdint>
#include <string_view>

int main() {
  std::uint32_t count = 0;
  if (ZTK_GetNumOfBoostLevelIndex(10, &count) != ZTK_SUCCESS) return 1;
  if (count != 4) return 2;
  ZTKTextRef text = nullptr;
  if (ZTK_GetBoostLevelText(10, 3, 0, &text) != ZTK_SUCCESS) return 3;
  return std::string_view(text) == "-19 dB" ? 0 : 4;
}
