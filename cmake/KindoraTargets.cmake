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
# Designated initialisers leave the other fields at their defaults on purpose.
# Contraction would let the compiler fuse a * b + c and change results between machines.
target_compile_options(
  kindora_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor
                            -Woverloaded-virtual -Wno-missing-field-initializers -Werror -ffp-contract=off)
target_link_libraries(kindora_options INTERFACE Threads::Threads)

if(KINDORA_SANITIZE)
  add_compile_options(-fsanitize=${KINDORA_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KINDORA_SANITIZE})
  if(KINDORA_SANITIZE MATCHES "undefined")
    add_compile_options(-fsanitize=float-cast-overflow)
  endif()
endif()
if(KINDORA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
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
  # Flags are no business of those who use an installed library.
  target_link_libraries(kindora_${NAME} PUBLIC ${ARG_LINKS}
                        PRIVATE $<BUILD_INTERFACE:kindora_options>)
endfunction()

# kindora_qml_module(NAME URI uri SOURCES file... QML file... [IMPORTS uri...] [LINKS target...])
# Makes kindora_NAME with the alias Kindora::NAME, a static library that is a QML module too. QML files
# are compiled ahead of time. IMPORTS names the modules whose types the C++ classes derive from. A program that uses the module links kindora_NAMEplugin besides.
function(kindora_qml_module NAME)
  cmake_parse_arguments(ARG "" "URI" "SOURCES;QML;IMPORTS;LINKS" ${ARGN})
  foreach(FILE IN LISTS ARG_QML)
    get_filename_component(BASE ${FILE} NAME)
    set_source_files_properties(${FILE} PROPERTIES QT_RESOURCE_ALIAS ${BASE})
  endforeach()
  string(REPLACE "." "/" FOLDER ${ARG_URI})
  qt_add_library(kindora_${NAME} STATIC)
  add_library(Kindora::${NAME} ALIAS kindora_${NAME})
  set_target_properties(kindora_${NAME} PROPERTIES AUTOMOC ON)
  # The registration code that Qt generates includes headers by their bare names.
  foreach(FILE IN LISTS ARG_SOURCES)
    get_filename_component(DIRECTORY ${FILE} DIRECTORY)
    list(APPEND DIRECTORIES ${CMAKE_CURRENT_SOURCE_DIR}/${DIRECTORY})
  endforeach()
  list(REMOVE_DUPLICATES DIRECTORIES)
  target_include_directories(
    kindora_${NAME}
    PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    PRIVATE ${DIRECTORIES})
  target_link_libraries(kindora_${NAME} PUBLIC ${ARG_LINKS})
  # How strict they are is up to those who use an installed module.
  target_compile_definitions(kindora_${NAME} PUBLIC $<BUILD_INTERFACE:QT_NO_CAST_FROM_ASCII>)
  qt_add_qml_module(
    kindora_${NAME}
    URI ${ARG_URI}
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${FOLDER}
    IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
    DEPENDENCIES QtQuick ${ARG_IMPORTS}
    SOURCES ${ARG_SOURCES}
    QML_FILES ${ARG_QML}
    OUTPUT_TARGETS PARTS)
  # An installed module is linked as a whole.
  target_link_libraries(kindora_${NAME} INTERFACE $<INSTALL_INTERFACE:Kindora::${NAME}plugin>)
  set_target_properties(kindora_${NAME} PROPERTIES KINDORA_MODULE_PARTS
                                                   "kindora_${NAME}plugin;${PARTS}")
  # Our own sources obey the strict flags; generated ones are not ours to mend.
  get_target_property(STRICT kindora_options INTERFACE_COMPILE_OPTIONS)
  foreach(FILE IN LISTS ARG_SOURCES)
    if(FILE MATCHES "\\.cpp$")
      set_source_files_properties(${FILE} PROPERTIES COMPILE_OPTIONS "${STRICT}")
    endif()
  endforeach()
endfunction()
