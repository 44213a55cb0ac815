// SPDX-License-Identifier: MIT
#ifndef ZTK_TESTS_SUPPORT_PRELOAD_H_
#define ZTK_TESTS_SUPPORT_PRELOAD_H_

// Defined in programs that are built with the address sanitizer.
#if defined(__SANITIZE_ADDRESS__)
#define ZTK_TEST_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define ZTK_TEST_ASAN 1
#endif
#endif

namespace ztk::test {

// Starts this program again with the library of the sandbox preloaded, unless
// the library is preloaded already. Must be the first call in main(). Returns
// only in the new run.
void PreloadSandbox(char **arguments);

}  // namespace ztk::test

#endif  // ZTK_TESTS_SUPPORT_PRELOAD_H_
