# SPDX-License-Identifier: MIT
#
# Installs the files, each in one of these components. A Debian package contains one
# component; the package ztk contains two.
#   library        the shared library
#   common         files for every program that uses the library: the bundle of
#                  texts (installed by resources/) and the udev rule
#   development    headers, their manual page, the CMake package, the .pc file
#   runtime        ztk and its files (installed by tools/); the default component
#   virtual-mixer  ztk-virtual-mixer and its files
#   window         ztk-window and its files
#   python         the Python package, if ZTK_PYTHON_DIR is set
#   documents      README, docs/, changelog and licence
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZTKFunc)
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

if(APPLE)
  install(TARGETS ZTKFunc EXPORT ZTKFuncTargets
    FRAMEWORK DESTINATION ${ZTK_FRAMEWORK_DIR} COMPONENT library)
else()
  install(TARGETS ZTKFunc EXPORT ZTKFuncTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
      COMPONENT library NAMELINK_COMPONENT development)
endif()
install(FILES
    ${PROJECT_SOURCE_DIR}/include/ZTKFunc.h
    ${PROJECT_SOURCE_DIR}/include/ZTKOutcome.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

# Programs find the library relative to their own folder, so that the installation
# can be moved. A framework is found by its full path.
if(TARGET ztk AND NOT APPLE)
  file(RELATIVE_PATH bin_to_lib
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(ztk PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
  if(TARGET ztk-window)
    set_target_properties(ztk-window PROPERTIES
      INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
  endif()
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

# The folders in the .pc file are relative to that file, so that the installation can
# be moved.
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
if(APPLE)
  set(pc_libs "-F${ZTK_FRAMEWORK_DIR} -framework VRM-D6Setup")
else()
  set(pc_libs "-L\${libdir} -lZTKFunc")
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/ztkfunc.pc.in
  ${PROJECT_BINARY_DIR}/generated/ztkfunc.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/generated/ztkfunc.pc
  DESTINATION ${pkgconfig_dir} COMPONENT development)

# udev writes a vendor id as four lower-case hexadecimal digits. The unit is installed
# in a folder that systemd does not search, because "ztk autoapply on" links it for one
# user.
if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
  string(REGEX REPLACE "^0x" "" vendor_id "${ZTK_USB_VENDOR_ID}")
  string(TOLOWER "${vendor_id}" vendor_id)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/70-tarvix-mixer.rules.in
    ${PROJECT_BINARY_DIR}/generated/70-tarvix-mixer.rules @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/generated/70-tarvix-mixer.rules
    DESTINATION lib/udev/rules.d COMPONENT common)
  if(TARGET ztk)
    foreach(file IN ITEMS 71-ztk-apply.rules ztk-apply@.service)
      configure_file(${PROJECT_SOURCE_DIR}/packaging/${file}.in
        ${PROJECT_BINARY_DIR}/generated/${file} @ONLY)
    endforeach()
    install(FILES ${PROJECT_BINARY_DIR}/generated/71-ztk-apply.rules
      DESTINATION lib/udev/rules.d)
    install(FILES ${PROJECT_BINARY_DIR}/generated/ztk-apply@.service
      DESTINATION ${CMAKE_INSTALL_DATADIR}/ztk)
  endif()
endif()

# The documents have the same relative paths as in the sources, so that the links
# between them work.
install(FILES
  ${PROJECT_SOURCE_DIR}/LICENSE
  ${PROJECT_SOURCE_DIR}/README.md
  ${PROJECT_SOURCE_DIR}/CHANGELOG.md
  ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents
  FILES_MATCHING PATTERN *.md PATTERN *.svg PATTERN *.png PATTERN *.json)

# The folder from which Python loads packages depends on the distribution.
set(ZTK_PYTHON_DIR "" CACHE STRING
    "Folder for the Python package, such as lib/python3/dist-packages; empty: none")
if(ZTK_PYTHON_DIR)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/bindings/python/ztkfunc
    DESTINATION ${ZTK_PYTHON_DIR} COMPONENT python
    PATTERN __pycache__ EXCLUDE)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/bindings/python/examples
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/python3-ztkfunc COMPONENT python
    USE_SOURCE_PERMISSIONS PATTERN __pycache__ EXCLUDE)
endif()
