# SPDX-License-Identifier: MIT
#
# What ztk-window costs, and a minimal window to compare it with.
if(NOT TARGET ztk_window)
  return()
endif()
add_library(ztk_bench_first_frame STATIC first_frame.cpp)
target_link_libraries(ztk_bench_first_frame PUBLIC Qt6::Widgets)
add_executable(ztk_window_start ztk_window_start.cpp)
target_link_libraries(ztk_window_start PRIVATE ztk_bench_first_frame
  ztk_window ztk_window_texts ztk_platform_${ZTK_PLATFORM})
add_executable(minimal_window_start minimal_window_start.cpp)
target_link_libraries(minimal_window_start PRIVATE ztk_bench_first_frame)
