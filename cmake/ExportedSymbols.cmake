# SPDX-License-Identifier: MIT
#
# Makes the linker's lists of exported symbols from src/exports.txt. That file has one
# name on each line; "#" starts a comment.

function(ztk_read_exports file out)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  file(STRINGS "${file}" names REGEX "^[A-Za-z_]")
  set(${out} ${names} PARENT_SCOPE)
endfunction()

function(ztk_version_script exports script)
  ztk_read_exports("${exports}" names)
  list(JOIN names ";\n    " body)
  file(CONFIGURE OUTPUT "${script}" CONTENT
"ZTKFUNC_${PROJECT_VERSION_MAJOR} {
  global:
    ${body};
  local:
    *;
};
")
endfunction()

# Writes the list for the linker of macOS. The symbol of a C name starts with an
# underscore, and an Objective-C class has two symbols.
function(ztk_exported_symbols_list exports list)
  ztk_read_exports("${exports}" names)
  list(TRANSFORM names PREPEND "_")
  foreach(class IN LISTS ARGN)
    list(APPEND names "_OBJC_CLASS_$_${class}" "_OBJC_METACLASS_$_${class}")
  endforeach()
  list(JOIN names "\n" body)
  file(CONFIGURE OUTPUT "${list}" CONTENT "${body}\n" @ONLY)
endfunction()
