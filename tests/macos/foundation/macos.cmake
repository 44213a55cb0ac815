# SPDX-License-Identifier: MIT
#
# The tests with Apple's Foundation. The program defines the functions of IOKit that the
# test double replaces, so the library's sources in this program call the double.
add_executable(macos_foundation_tests
  ${foundation_tests}
  main_macos.mm
  ../iokit_double.cpp
  ../iokit_double_device.cpp
  ../iokit_double_dictionaries.mm
  ${PROJECT_SOURCE_DIR}/src/notify/observer.mm
  ${PROJECT_SOURCE_DIR}/tests/support/child.cpp
  ${PROJECT_SOURCE_DIR}/tests/support/temp_home.cpp)
# The tests need std::filesystem, which macOS has since 10.15.
target_compile_definitions(macos_foundation_tests PRIVATE
  _LIBCPP_DISABLE_AVAILABILITY)
target_compile_options(macos_foundation_tests PRIVATE -fno-objc-arc)
target_include_directories(macos_foundation_tests PRIVATE
  ${PROJECT_SOURCE_DIR}/tests ${PROJECT_SOURCE_DIR}/tests/macos
  ${PROJECT_SOURCE_DIR}/tools)
target_link_libraries(macos_foundation_tests PRIVATE
  ztk_headers ztk_core ztk_platform_macos GTest::gmock GTest::gtest)
# In a cross-build, the program is only compiled and linked.
if(NOT CMAKE_CROSSCOMPILING)
  gtest_discover_tests(macos_foundation_tests
    DISCOVERY_TIMEOUT 60 PROPERTIES LABELS macos TIMEOUT 120)
endif()
