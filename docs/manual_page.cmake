# SPDX-License-Identifier: MIT
#
# Makes the manual page of the header with doxygen. The head of doxygen's page
# names the day of the build and its foot names doxygen: they are replaced, so
# that each build makes the same bytes.
cmake_path(GET MADE PARENT_PATH folder)
file(MAKE_DIRECTORY "${folder}")
execute_process(COMMAND ${DOXYGEN} ${DOXYFILE} COMMAND_ERROR_IS_FATAL ANY)

file(READ "${MADE}" text)
string(REGEX REPLACE "^\\.TH [^\n]*" ".TH \"ZTKFunc\" 3 \"${DATE}\" \"${PACKAGE}\""
  text "${text}")
string(REGEX REPLACE "\n\\.SH \"Author\".*" "\n" text "${text}")
string(REPLACE "\nZTKFunc.h \\-" "\nZTKFunc \\-" text "${text}")
file(WRITE "${PAGE}" "${text}")
