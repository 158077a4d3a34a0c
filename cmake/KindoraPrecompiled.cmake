# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0

# Parsing the headers of the standard library, Qt and GoogleTest takes two thirds of a build's time,
# so they are parsed once for all targets of a level:
#
#   std     the standard library alone
#   qt      no more, with the flags that Qt wants: for what links it without its QML engine
#   qml     ... and Qt without Qt Quick: controllers
#   quick   ... and Qt Quick
#
# A target gets the level of what it links, so that nothing is included that it must not know.

set(KINDORA_LEVELS std qt qml quick)
set(KINDORA_HEADERS_std
    <algorithm>
    <array>
    <chrono>
    <cmath>
    <cstdint>
    <functional>
    <limits>
    <map>
    <memory>
    <optional>
    <set>
    <span>
    <string>
    <string_view>
    <utility>
    <variant>
    <vector>)
set(KINDORA_HEADERS_qt ${KINDORA_HEADERS_std})
set(KINDORA_HEADERS_qml
    ${KINDORA_HEADERS_std}
    <QAbstractListModel>
    <QColor>
    <QCoreApplication>
    <QFont>
    <QObject>
    <QPointer>
    <QString>
    <QTimer>
    <QUrl>
    <QVariant>
    <QVariantAnimation>
    <QtQml/qqml.h>
    <QtQml/qqmllist.h>
    <QtQml/qqmlmoduleregistration.h>
    <QtQml/qqmlregistration.h>)
# What sources compiled from QML include, and items.
set(KINDORA_HEADERS_quick
    ${KINDORA_HEADERS_qml}
    <QDateTime>
    <QJSEngine>
    <QImage>
    <QQmlComponent>
    <QQmlContext>
    <QQmlEngine>
    <QQuickItem>
    <QQuickWindow>
    <QSGNode>
    <QtQml/qjsprimitivevalue.h>
    <QtQml/qqmlprivate.h>)
set(KINDORA_LINKS_std)
set(KINDORA_LINKS_qt Qt6::Core)
set(KINDORA_LINKS_qml Qt6::Gui Qt6::Qml)
set(KINDORA_LINKS_quick Qt6::Quick)

# The highest level among those of the targets that follow, as the variable OUT.
function(kindora_level OUT)
  set(highest 0)
  foreach(link IN LISTS ARGN)
    set(level std)
    if(link STREQUAL Qt6::Quick)
      set(level quick)
    elseif(link STREQUAL Qt6::Qml)
      set(level qml)
    elseif(link MATCHES "^Qt6::")
      set(level qt)
    elseif(TARGET ${link})
      get_target_property(known ${link} KINDORA_LEVEL)
      if(known)
        set(level ${known})
      endif()
    endif()
    list(FIND KINDORA_LEVELS ${level} index)
    if(index GREATER highest)
      set(highest ${index})
    endif()
  endforeach()
  list(GET KINDORA_LEVELS ${highest} level)
  set(${OUT}
      ${level}
      PARENT_SCOPE)
endfunction()

# kindora_precompile(TARGET LEVEL [TESTS])
# TESTS is for test programs, which include GoogleTest besides and are built with other flags.
function(kindora_precompile TARGET LEVEL)
  if(NOT KINDORA_PRECOMPILE_HEADERS)
    return()
  endif()
  cmake_parse_arguments(ARG "TESTS" "" "" ${ARGN})
  set(name kindora_headers_${LEVEL})
  if(ARG_TESTS)
    string(APPEND name _tests)
  endif()
  if(NOT TARGET ${name})
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/headers/Empty.cpp CONTENT
         "int main() { return 0; }\n")
    if(ARG_TESTS)
      add_executable(${name} EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/headers/Empty.cpp)
      kindora_test_options(${name})
      target_link_libraries(${name} PRIVATE GTest::gmock)
      set(headers <gmock/gmock.h> <gtest/gtest.h>)
    else()
      add_library(${name} OBJECT EXCLUDE_FROM_ALL ${CMAKE_BINARY_DIR}/headers/Empty.cpp)
      set(headers)
    endif()
    target_link_libraries(${name} PRIVATE kindora_options ${KINDORA_LINKS_${LEVEL}})
    if(LEVEL MATCHES "^(qml|quick)$")
      target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII)
    endif()
    target_precompile_headers(${name} PRIVATE ${KINDORA_HEADERS_${LEVEL}} ${headers})
  endif()
  target_precompile_headers(${TARGET} REUSE_FROM ${name})
endfunction()
