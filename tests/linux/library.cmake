# SPDX-License-Identifier: MIT
#
# Tests the complete shared library with virtual mixers in the sandbox.
if(NOT TARGET ztk_virtual_mixer)
  return()
endif()

add_executable(library_child library_child.cpp)
target_link_libraries(library_child PRIVATE ZTKFunc PkgConfig::GLIB ${CMAKE_DL_LIBS})
target_compile_options(library_child PRIVATE -Wno-old-style-cast)

add_executable(plain_child plain_child.cpp)
target_link_libraries(plain_child PRIVATE ZTKFunc)
target_compile_definitions(plain_child PRIVATE
  $<TARGET_PROPERTY:ztk_platform_linux,COMPILE_DEFINITIONS>)

# The core and the port are linked into this test.
add_executable(allocation_test allocation_test.cpp failing_new.cpp)
target_link_libraries(allocation_test PRIVATE
  ztk_headers ztk_core ztk_platform_linux)
target_include_directories(allocation_test PRIVATE ${PROJECT_SOURCE_DIR}/tests)
add_dependencies(allocation_test ztk-virtual-mixer)
add_test(NAME allocation_test
  COMMAND ztk-virtual-mixer run --private-settings -- $<TARGET_FILE:allocation_test>)
# libplist leaks objects if memory runs out in it.
set_tests_properties(allocation_test PROPERTIES LABELS sandbox TIMEOUT 300
  ENVIRONMENT ASAN_OPTIONS=detect_leaks=0)

add_executable(library_tests
  ../support/library_world.cpp
  ../support/library_world_sandbox.cpp
  library_main.cpp
  library_devices_test.cpp
  library_files_test.cpp
  library_outcome_test.cpp
  library_process_test.cpp
  library_requests_test.cpp
  library_settings_test.cpp
  library_status_test.cpp)
add_dependencies(library_tests library_child plain_child)
target_include_directories(library_tests PRIVATE ${PROJECT_SOURCE_DIR}/tools)
target_compile_definitions(library_tests PRIVATE
  ZTK_LIBRARY_CHILD="$<TARGET_FILE:library_child>"
  ZTK_LIBRARY_FILE="$<TARGET_FILE:ZTKFunc>"
  ZTK_PLAIN_CHILD="$<TARGET_FILE:plain_child>"
  $<TARGET_PROPERTY:ztk_platform_linux,COMPILE_DEFINITIONS>)
target_link_libraries(library_tests PRIVATE
  ZTKFunc ztk_headers ztk_virtual_mixer ztk_test_support
  GTest::gmock GTest::gtest)
gtest_discover_tests(library_tests DISCOVERY_TIMEOUT 60
  PROPERTIES LABELS sandbox TIMEOUT 600)
