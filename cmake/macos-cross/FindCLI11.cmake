# SPDX-License-Identifier: MIT
include(${CMAKE_CURRENT_LIST_DIR}/BorrowHeaders.cmake)
borrow_headers(CLI11 CLI11::CLI11 CLI CLI.hpp)
