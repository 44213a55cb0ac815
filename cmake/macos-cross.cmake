# SPDX-License-Identifier: MIT
#
# Builds for macOS on Linux, with clang, ld64.lld and an SDK that you have:
#
#   cmake -S . -B build/macos -DCMAKE_TOOLCHAIN_FILE=cmake/macos-cross.cmake \
#     -DMACOS_SDK=DIR [-DMACOS_ARCH=arm64]
#
# DIR is the folder that contains SDKSettings.json.

set(MACOS_SDK "" CACHE PATH "Folder of the macOS SDK, with SDKSettings.json")
set(MACOS_ARCH x86_64 CACHE STRING "Processor to build for: x86_64 or arm64")
# CMake tests the compiler in separate projects, which need these variables too.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES MACOS_SDK MACOS_ARCH)

if(NOT EXISTS "${MACOS_SDK}/SDKSettings.json")
  message(FATAL_ERROR "MACOS_SDK is \"${MACOS_SDK}\", which contains no "
    "SDKSettings.json; give the folder of a macOS SDK with -DMACOS_SDK=DIR")
endif()
if(MACOS_ARCH STREQUAL "x86_64")
  set(CMAKE_OSX_DEPLOYMENT_TARGET 10.13)
elseif(MACOS_ARCH STREQUAL "arm64")
  set(CMAKE_OSX_DEPLOYMENT_TARGET 11.0)
else()
  message(FATAL_ERROR
    "MACOS_ARCH is \"${MACOS_ARCH}\"; give x86_64 or arm64")
endif()

set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR ${MACOS_ARCH})
set(CMAKE_OSX_ARCHITECTURES ${MACOS_ARCH})
set(CMAKE_OSX_SYSROOT ${MACOS_SDK})

# In Debian, the names of some of these tools end with the version.
function(find_tool variable name)
  find_program(${variable} NAMES ${name} ${name}-14 ${name}-19
    PATHS /usr/lib/llvm-14/bin /usr/lib/llvm-19/bin
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
endfunction()
find_tool(MACOS_CLANG clang)
find_tool(MACOS_CLANGXX clang++)
# The linker of LLVM 14 writes wrong unwind addresses for arm64, so later versions are
# searched first.
find_program(MACOS_LINKER NAMES ld64.lld
  PATHS /usr/lib/llvm-19/bin /usr/lib/llvm-16/bin
  NO_CMAKE_FIND_ROOT_PATH NO_DEFAULT_PATH)
if(NOT MACOS_LINKER)
  find_tool(MACOS_LINKER ld64.lld)
endif()
find_tool(CMAKE_AR llvm-ar)
find_tool(CMAKE_RANLIB llvm-ranlib)
find_tool(CMAKE_STRIP llvm-strip)
find_tool(CMAKE_NM llvm-nm)
find_tool(CMAKE_OTOOL llvm-otool)
find_tool(CMAKE_INSTALL_NAME_TOOL llvm-install-name-tool)

set(CMAKE_C_COMPILER ${MACOS_CLANG})
set(CMAKE_CXX_COMPILER ${MACOS_CLANGXX})
set(CMAKE_OBJCXX_COMPILER ${MACOS_CLANGXX})
set(target ${MACOS_ARCH}-apple-macos${CMAKE_OSX_DEPLOYMENT_TARGET})
foreach(language C CXX OBJCXX)
  set(CMAKE_${language}_COMPILER_TARGET ${target})
  set(CMAKE_${language}_FLAGS_INIT "-stdlib=libc++")
endforeach()
set(CMAKE_C_FLAGS_INIT "")
cmake_path(GET MACOS_LINKER PARENT_PATH linker_folder)
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-fuse-ld=lld -B${linker_folder}")
endforeach()
# The Makefile generator uses this variable for frameworks. CMake does not set it from
# the ..._INIT variables.
set(CMAKE_MACOSX_FRAMEWORK_LINKER_FLAGS "-fuse-ld=lld -B${linker_folder}")

# Headers and libraries are searched only in the SDK. The modules in macos-cross/ find
# the two header-only libraries that ztk needs.
set(CMAKE_FIND_ROOT_PATH ${MACOS_SDK})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/macos-cross)
