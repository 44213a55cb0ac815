# SPDX-License-Identifier: MIT
include(${CMAKE_CURRENT_LIST_DIR}/BorrowHeaders.cmake)
borrow_headers(nlohmann_json nlohmann_json::nlohmann_json nlohmann json.hpp)
