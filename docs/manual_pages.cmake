# SPDX-License-Identifier: MIT
#
# Makes the manual pages of the headers with doxygen. The head of doxygen's page
# names the day of the build and its foot names doxygen: they are replaced, so
# that each build makes the same bytes.
cmake_minimum_required(VERSION 3.25)
file(MAKE_DIRECTORY "${MADE}")
execute_process(COMMAND ${DOXYGEN} ${DOXYFILE} COMMAND_ERROR_IS_FATAL ANY)

foreach(page IN LISTS PAGES)
  cmake_path(GET page STEM name)
  file(READ "${MADE}/${name}.h.3" text)
  string(REGEX REPLACE "^\\.TH [^\n]*"
    ".TH \"${name}\" 3 \"${DATE}\" \"${PACKAGE}\"" text "${text}")
  string(REGEX REPLACE "\n\\.SH \"Author\".*" "\n" text "${text}")
  string(REPLACE "\n${name}.h \\-" "\n${name} \\-" text "${text}")
  file(WRITE "${page}" "${text}")
endforeach()
