# SPDX-License-Identifier: MIT
#
# What is installed and where. Component "runtime" is what a user needs,
# "development" what a programmer adds to it. The programs and the bundle of
# texts say so themselves, in tools/ and resources/.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZTKFunc)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS ZTKFunc EXPORT ZTKFuncTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    COMPONENT runtime NAMELINK_COMPONENT development)
install(FILES ${PROJECT_SOURCE_DIR}/include/ZTKFunc.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

# Programs find the library beside themselves, wherever the two are moved.
if(TARGET ztk)
  file(RELATIVE_PATH bin_to_lib
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(ztk PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
endif()

install(EXPORT ZTKFuncTargets NAMESPACE ZTKFunc:: DESTINATION ${package_dir}
  COMPONENT development)
configure_package_config_file(
  ${PROJECT_SOURCE_DIR}/cmake/ZTKFuncConfig.cmake.in
  ${PROJECT_BINARY_DIR}/generated/ZTKFuncConfig.cmake
  INSTALL_DESTINATION ${package_dir}
  NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(
  ${PROJECT_BINARY_DIR}/generated/ZTKFuncConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/generated/ZTKFuncConfig.cmake
  ${PROJECT_BINARY_DIR}/generated/ZTKFuncConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# The .pc file names its folders from where it lies, so that an installation
# may be moved.
cmake_path(ABSOLUTE_PATH pkgconfig_dir
  BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX} OUTPUT_VARIABLE pc_folder)
file(RELATIVE_PATH pc_to_prefix ${pc_folder} ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_to_prefix "${pc_to_prefix}")
foreach(kind LIB INCLUDE)
  if(IS_ABSOLUTE "${CMAKE_INSTALL_${kind}DIR}")
    set(pc_${kind} "${CMAKE_INSTALL_${kind}DIR}")
  else()
    set(pc_${kind} "\${prefix}/${CMAKE_INSTALL_${kind}DIR}")
  endif()
endforeach()
configure_file(${PROJECT_SOURCE_DIR}/cmake/ztkfunc.pc.in
  ${PROJECT_BINARY_DIR}/generated/ztkfunc.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/generated/ztkfunc.pc
  DESTINATION ${pkgconfig_dir} COMPONENT development)

# udev knows vendors by four small hexadecimal digits.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  string(REGEX REPLACE "^0x" "" vendor_id "${ZTK_USB_VENDOR_ID}")
  string(TOLOWER "${vendor_id}" vendor_id)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/70-tarvix-mixer.rules.in
    ${PROJECT_BINARY_DIR}/generated/70-tarvix-mixer.rules @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/generated/70-tarvix-mixer.rules
    DESTINATION lib/udev/rules.d COMPONENT runtime)
endif()

install(FILES
  ${PROJECT_SOURCE_DIR}/LICENSE
  ${PROJECT_SOURCE_DIR}/README.md
  ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
