# SPDX-License-Identifier: MIT
#
# Uses a header-only library of the system on which the build runs. Only the folder of
# this library is linked into the build folder, so that no other headers of that system
# are used.

function(borrow_headers package target folder header)
  find_path(${package}_FOLDER ${folder}/${header} PATHS /usr/include
    NO_CMAKE_FIND_ROOT_PATH NO_DEFAULT_PATH)
  include(FindPackageHandleStandardArgs)
  find_package_handle_standard_args(${package}
    REQUIRED_VARS ${package}_FOLDER)
  if(NOT ${package}_FOUND OR TARGET ${target})
    return()
  endif()
  set(borrowed ${CMAKE_BINARY_DIR}/borrowed)
  file(MAKE_DIRECTORY ${borrowed})
  file(CREATE_LINK ${${package}_FOLDER}/${folder} ${borrowed}/${folder}
    SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} INTERFACE ${borrowed})
endfunction()
