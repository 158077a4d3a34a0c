# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0

# The one place for compiler flags, and the functions with which every folder declares its target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

option(KINDORA_WERROR "Make warnings errors; for this project's own developers" OFF)
option(KINDORA_COMPILE_QML "Compile QML files ahead of time, as what ships has them" ON)
option(KINDORA_PRECOMPILE_HEADERS "Parse the headers of libraries once instead of in each source"
       ON)
option(KINDORA_JOIN_SOURCES
       "Compile the sources of a target a few at a time, for builds from nothing" OFF)
set(CMAKE_UNITY_BUILD ${KINDORA_JOIN_SOURCES})
set(KINDORA_SANITIZE
    ""
    CACHE STRING "Sanitizers to build with, for instance address,undefined")
option(KINDORA_COVERAGE "Instrument for gcov" OFF)

find_package(Threads REQUIRED)
include(KindoraPrecompiled)

add_library(kindora_options INTERFACE)
# Designated initialisers leave the other fields at their defaults on purpose.
# Contraction would let the compiler fuse a * b + c and change results between machines.
target_compile_options(
  kindora_options
  INTERFACE
    -Wall
    -Wextra
    -Wpedantic
    -Wshadow
    -Wconversion
    -Wnon-virtual-dtor
    -Woverloaded-virtual
    -Wno-missing-field-initializers
    -ffp-contract=off)
if(KINDORA_WERROR)
  target_compile_options(kindora_options INTERFACE -Werror)
endif()
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
# Makes the target kindora_NAME with the alias Kindora::NAME. Headers are included by their path
# from the top folder. What LINKS does not name, directly or through others, is refused by
# check_arrows.
function(kindora_library NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(kindora_${NAME} STATIC ${ARG_SOURCES})
  add_library(Kindora::${NAME} ALIAS kindora_${NAME})
  target_include_directories(kindora_${NAME} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
  # Flags are no business of those who use an installed library.
  target_link_libraries(
    kindora_${NAME}
    PUBLIC ${ARG_LINKS}
    PRIVATE $<BUILD_INTERFACE:kindora_options>)
  kindora_level(LEVEL ${ARG_LINKS})
  set_target_properties(kindora_${NAME} PROPERTIES KINDORA_LEVEL ${LEVEL})
  kindora_precompile(kindora_${NAME} ${LEVEL})
endfunction()

# kindora_join(TARGET file...)
# Lets the sources among the files be compiled eight at a time where sources are to be joined.
function(kindora_join TARGET)
  if(NOT KINDORA_JOIN_SOURCES)
    return()
  endif()
  set_target_properties(${TARGET} PROPERTIES UNITY_BUILD_MODE GROUP)
  set(sources ${ARGN})
  list(FILTER sources INCLUDE REGEX "\\.cpp$")
  set(index 0)
  foreach(source IN LISTS sources)
    math(EXPR group "${index} / 8")
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP own_${group})
    math(EXPR index "${index} + 1")
  endforeach()
endfunction()

# kindora_excuse_generated(TARGET file.qml...)
# The warnings of what Qt writes for a module are not ours to mend, and its speed is the engine's.
function(kindora_excuse_generated TARGET)
  set(excused ${CMAKE_CURRENT_BINARY_DIR}/${TARGET}_qmltyperegistrations.cpp)
  foreach(file IN LISTS ARGN)
    get_filename_component(base ${file} NAME_WE)
    set(compiled ${CMAKE_CURRENT_BINARY_DIR}/.rcc/qmlcache/${TARGET}_${base}_qml.cpp)
    if(KINDORA_JOIN_SOURCES)
      set_source_files_properties(${compiled} PROPERTIES UNITY_GROUP qml)
    else()
      list(APPEND excused ${compiled})
    endif()
  endforeach()
  if(KINDORA_JOIN_SOURCES)
    set(joined ${CMAKE_CURRENT_BINARY_DIR}/CMakeFiles/${TARGET}.dir/Unity)
    list(APPEND excused ${joined}/unity_qml_cxx.cxx)
  endif()
  set_source_files_properties(${excused} PROPERTIES COMPILE_OPTIONS
                                                    "-w;$<$<NOT:$<CONFIG:Debug>>:-O1>")
endfunction()

# kindora_qml_module(NAME URI uri [SOURCES file...] [QML file...] [IMPORTS uri...]
#                    [LINKS target...])
# Makes kindora_NAME with the alias Kindora::NAME, a static library that is a QML module too.
# IMPORTS names the modules that come with it wherever it is imported. Programs that link it can
# import it.
function(kindora_qml_module NAME)
  cmake_parse_arguments(ARG "" "URI" "SOURCES;QML;IMPORTS;LINKS" ${ARGN})
  foreach(FILE IN LISTS ARG_QML)
    get_filename_component(BASE ${FILE} NAME)
    set_source_files_properties(${FILE} PROPERTIES QT_RESOURCE_ALIAS ${BASE})
  endforeach()
  string(REPLACE "." "/" FOLDER ${ARG_URI})
  set(CACHEGEN)
  if(NOT KINDORA_COMPILE_QML)
    set(CACHEGEN NO_CACHEGEN)
  endif()
  qt_add_library(kindora_${NAME} STATIC)
  add_library(Kindora::${NAME} ALIAS kindora_${NAME})
  set_target_properties(kindora_${NAME} PROPERTIES AUTOMOC ON)
  # The registration code that Qt generates includes headers by their bare names.
  target_include_directories(
    kindora_${NAME}
    PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
    PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(
    kindora_${NAME}
    PUBLIC ${ARG_LINKS}
    PRIVATE $<BUILD_INTERFACE:kindora_options>)
  # How strict they are is up to those who use an installed module.
  target_compile_definitions(kindora_${NAME} PUBLIC $<BUILD_INTERFACE:QT_NO_CAST_FROM_ASCII>)
  qt_add_qml_module(
    kindora_${NAME}
    URI ${ARG_URI}
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${FOLDER}
    IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
    IMPORTS ${ARG_IMPORTS}
    DEPENDENCIES QtQuick
    SOURCES ${ARG_SOURCES}
    QML_FILES ${ARG_QML}
    OUTPUT_TARGETS PARTS ${CACHEGEN})
  # Whoever links the module has its plugin too, and with it what makes it known to QML.
  target_link_libraries(kindora_${NAME} INTERFACE $<BUILD_INTERFACE:kindora_${NAME}plugin>
                                                  $<INSTALL_INTERFACE:Kindora::${NAME}plugin>)
  set_target_properties(kindora_${NAME} PROPERTIES KINDORA_MODULE_PARTS
                                                   "kindora_${NAME}plugin;${PARTS}")
  kindora_level(LEVEL Qt6::Qml ${ARG_LINKS})
  set_target_properties(kindora_${NAME} PROPERTIES KINDORA_LEVEL ${LEVEL})
  kindora_precompile(kindora_${NAME} ${LEVEL})
  kindora_precompile(kindora_${NAME}plugin qml)
  kindora_join(kindora_${NAME} ${ARG_SOURCES})
  kindora_excuse_generated(kindora_${NAME} ${ARG_QML})
endfunction()
