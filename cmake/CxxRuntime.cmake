# SPDX-License-Identifier: MIT
#
# The C++ runtime as a part of what is linked. As a shared library it takes a
# fifth of the time of a program that only asks a mixer something: it binds
# thousands of names to itself each time, of which few are used here. Nor need
# a program of another compiler then agree with the library on a version of it.

set(ztk_static_cxx_runtime -static-libstdc++ -static-libgcc)

if(ZTK_STATIC_CXX_RUNTIME)
  include(CheckCXXSourceCompiles)
  include(CMakePushCheckState)
  cmake_push_check_state(RESET)
  # Into a shared library: that takes one whose code may lie anywhere.
  set(CMAKE_REQUIRED_FLAGS -fPIC)
  set(CMAKE_REQUIRED_LINK_OPTIONS ${ztk_static_cxx_runtime} -shared LINKER:-z,text)
  check_cxx_source_compiles("
    #include <string>
    std::string Twice(const std::string &text) { return text + text; }
    int main() { return static_cast<int>(Twice({}).size()); }"
    ZTK_HAS_STATIC_CXX_RUNTIME)
  cmake_pop_check_state()
  if(NOT ZTK_HAS_STATIC_CXX_RUNTIME)
    # Asked again when it has been installed.
    unset(ZTK_HAS_STATIC_CXX_RUNTIME CACHE)
    message(FATAL_ERROR
      "The C++ runtime is not here as a static library. Install it (libstdc++-static "
      "where it is a package of its own), or build with -DZTK_STATIC_CXX_RUNTIME=OFF.")
  endif()
endif()

# For the library and ztk, whose start counts; all else keeps the shared one.
# clang names the mathematics beside it, whether anything of that is used or not.
function(ztk_link_cxx_runtime target)
  if(ZTK_STATIC_CXX_RUNTIME)
    target_link_options(${target} PRIVATE
      ${ztk_static_cxx_runtime} LINKER:--gc-sections LINKER:--as-needed)
  endif()
endfunction()
