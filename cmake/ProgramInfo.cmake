# SPDX-License-Identifier: MIT
#
# On macOS the main bundle decides which languages a process has, and the
# framework follows it. A plain program has no bundle folder, and so only
# English, unless an Info.plist inside it lets each framework choose by itself.

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
