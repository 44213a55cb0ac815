# SPDX-License-Identifier: MIT
#
# On macOS the main bundle of a process decides which languages its frameworks use. A
# program without a bundle folder has only English. An Info.plist inside the program
# allows each framework to use its own languages.

function(ztk_embed_info program)
  if(NOT APPLE)
    return()
  endif()
  set(info ${PROJECT_BINARY_DIR}/generated/${program}-Info.plist)
  configure_file(${PROJECT_SOURCE_DIR}/packaging/macos/program-Info.plist.in
    ${info} @ONLY)
  target_link_options(${program} PRIVATE
    "LINKER:-sectcreate,__TEXT,__info_plist,${info}")
  set_property(TARGET ${program} APPEND PROPERTY LINK_DEPENDS ${info})
endfunction()
