# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0

# The one place for compiler flags, and the function with which every folder declares its target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(KINDORA_SANITIZE "" CACHE STRING "Sanitizers to build with, for instance address,undefined")
option(KINDORA_COVERAGE "Instrument for gcov" OFF)

find_package(Threads REQUIRED)

add_library(kindora_options INTERFACE)
# Contraction would let the compiler fuse a * b + c and change results between machines.
target_compile_options(
  kindora_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                            -Woverloaded-virtual -Werror -ffp-contract=off)
target_link_libraries(kindora_options INTERFACE Threads::Threads)

if(KINDORA_SANITIZE)
  add_compile_options(-fsanitize=${KINDORA_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KINDORA_SANITIZE})
  if(KINDORA_SANITIZE MATCHES "undefined")
    add_compile_options(-fsanitize=float-cast-overflow)
  endif()
endif()
if(KINDORA_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# kindora_library(NAME SOURCES file... [LINKS target...])
# Makes the target kindora_NAME with the alias Kindora::NAME. Headers are included by their path from
# the top folder. Only what LINKS names can be reached, so the build refuses a wrong arrow.
function(kindora_library NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(kindora_${NAME} STATIC ${ARG_SOURCES})
  add_library(Kindora::${NAME} ALIAS kindora_${NAME})
  target_include_directories(kindora_${NAME} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  target_link_libraries(kindora_${NAME} PUBLIC ${ARG_LINKS} PRIVATE kindora_options)
endfunction()
