# SPDX-License-Identifier: MIT
#
# Defines the target uninstall, which removes the files of the last
# "cmake --install build" and the folders that this installation made.
#
# This file must be included before all other install() commands. Its code then runs
# first at each installation and records which folders exist already.

set(install_folders ${CMAKE_INSTALL_BINDIR} ${CMAKE_INSTALL_LIBDIR}/cmake
  ${CMAKE_INSTALL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_INCLUDEDIR} lib/udev/rules.d
  ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
  ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d ${ZTK_ZSH_COMPLETIONS}
  ${CMAKE_INSTALL_MANDIR}/man1 ${CMAKE_INSTALL_MANDIR}/man3
  ${CMAKE_INSTALL_DOCDIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/record_folders.cmake.in
  ${PROJECT_BINARY_DIR}/generated/record_folders.cmake @ONLY)
install(SCRIPT ${PROJECT_BINARY_DIR}/generated/record_folders.cmake)

add_custom_target(uninstall
  COMMAND ${CMAKE_COMMAND} -DBUILD=${PROJECT_BINARY_DIR}
    -P ${PROJECT_SOURCE_DIR}/cmake/uninstall_files.cmake
  COMMENT "Removing the installed files" VERBATIM)
