# SPDX-License-Identifier: MIT
#
# cmake -DDOXYFILE=FILE -DTO=DIR -P reference.cmake: makes the interface reference.
cmake_minimum_required(VERSION 3.25)
find_program(DOXYGEN doxygen)
if(NOT DOXYGEN)
  message(FATAL_ERROR "doxygen makes the reference, and it is not installed.")
endif()
file(MAKE_DIRECTORY "${TO}")
message("Making the interface reference in ${TO}/html")
execute_process(COMMAND ${DOXYGEN} ${DOXYFILE} COMMAND_ERROR_IS_FATAL ANY)
