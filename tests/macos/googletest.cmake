# SPDX-License-Identifier: MIT
#
# Builds GoogleTest for macOS from its sources in Debian's package libgtest-dev.
set(sources /usr/src/googletest)
if(NOT EXISTS ${sources}/googletest/src/gtest-all.cc)
  message(FATAL_ERROR "${sources} contains no sources of GoogleTest: install "
    "libgtest-dev and libgmock-dev, or build with -DBUILD_TESTING=OFF")
endif()
add_library(gtest_sources STATIC
  ${sources}/googletest/src/gtest-all.cc ${sources}/googlemock/src/gmock-all.cc)
target_include_directories(gtest_sources SYSTEM PUBLIC
  ${sources}/googletest/include ${sources}/googlemock/include)
target_include_directories(gtest_sources PRIVATE
  ${sources}/googletest ${sources}/googlemock)
target_compile_options(gtest_sources PRIVATE -w)
add_library(GTest::gtest ALIAS gtest_sources)
add_library(GTest::gmock ALIAS gtest_sources)
add_library(gtest_main_source STATIC
  ${sources}/googlemock/src/gmock_main.cc)
target_link_libraries(gtest_main_source PUBLIC gtest_sources)
target_compile_options(gtest_main_source PRIVATE -w)
add_library(GTest::gtest_main ALIAS gtest_main_source)
