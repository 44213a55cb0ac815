# SPDX-License-Identifier: MIT
#
# The floor and the program that repeats a call. They are not in CMakeLists.txt, because
# the test that counts system calls needs them without the benchmarks.
include_guard(GLOBAL)

add_library(ztk_bench_floor STATIC
  ${CMAKE_CURRENT_LIST_DIR}/floor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/floor_bus.cpp
  ${CMAKE_CURRENT_LIST_DIR}/floor_settings.cpp)
# Its sources define constants with the same names, so they cannot be in one unity build.
set_target_properties(ztk_bench_floor PROPERTIES UNITY_BUILD OFF)
target_include_directories(ztk_bench_floor PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(ztk_bench_floor PRIVATE ztk_headers)

add_executable(repeat_calls ${CMAKE_CURRENT_LIST_DIR}/repeat_calls.cpp)
target_link_libraries(repeat_calls PRIVATE ZTKFunc ztk_bench_floor)
