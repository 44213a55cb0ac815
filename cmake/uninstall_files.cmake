# SPDX-License-Identifier: MIT
#
# Removes the files that DIR/install_manifest.txt lists. Then removes each folder that
# is empty and did not exist before the installation.
#
# Usage: cmake -DBUILD=DIR -P uninstall_files.cmake
cmake_minimum_required(VERSION 3.25)
set(manifest "${BUILD}/install_manifest.txt")
set(record "${BUILD}/install_folders.txt")
if(NOT EXISTS "${manifest}" OR NOT EXISTS "${record}")
  message(FATAL_ERROR "Nothing is installed from ${BUILD}: it has no "
    "install_manifest.txt. Only a whole \"cmake --install\" can be undone.")
endif()

file(STRINGS "${manifest}" files)
file(STRINGS "${record}" existing)
# The first line is the prefix, which may not have existed.
list(POP_FRONT existing)
foreach(file IN LISTS files)
  set(file "$ENV{DESTDIR}${file}")
  file(REMOVE "${file}")
  cmake_path(GET file PARENT_PATH folder)
  while(NOT folder IN_LIST existing AND NOT folder STREQUAL "/")
    file(GLOB left LIST_DIRECTORIES true "${folder}/*" "${folder}/.[!.]*")
    if(left OR IS_SYMLINK "${folder}")
      break()
    endif()
    file(REMOVE_RECURSE "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()
file(REMOVE "${manifest}" "${record}")
