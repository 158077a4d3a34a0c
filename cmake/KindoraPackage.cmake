# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0

# How parts of the tree become components of an installed package, for other programs:
#
#     cmake --build BUILD-FOLDER --target component_effects
#     cmake --install BUILD-FOLDER --component effects --prefix FOLDER
#     find_package(Kindora COMPONENTS effects)
#
# Whoever installs the app does not want them, so that an install of everything leaves them out.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(KINDORA_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/Kindora)

# kindora_component(NAME TARGETS name... [NEEDS component...] [PACKAGES "package arguments"...]
#                   [WITHOUT header...])
# TARGETS names what kindora_library and kindora_qml_module made. They are exported under the names
# that they have in the tree, with all headers of the folders that their sources lie in, but for
# those that WITHOUT names by their paths from the top folder. Unless a target bears the component's
# name, there is a target of that name besides, to link all of them. NEEDS names components declared
# before, which are installed and found together with this one. PACKAGES are what else find_package
# has to find, each the arguments of one call.
function(kindora_component NAME)
  cmake_parse_arguments(ARG "" "" "TARGETS;NEEDS;PACKAGES;WITHOUT" ${ARGN})
  set(component COMPONENT ${NAME} EXCLUDE_FROM_ALL)
  list(TRANSFORM ARG_TARGETS PREPEND kindora_)
  add_custom_target(component_${NAME})
  if(NOT TARGET kindora_${NAME})
    add_library(kindora_${NAME} INTERFACE)
    add_library(Kindora::${NAME} ALIAS kindora_${NAME})
    target_link_libraries(kindora_${NAME} INTERFACE ${ARG_TARGETS})
    set_target_properties(kindora_${NAME} PROPERTIES EXPORT_NAME ${NAME})
    install(TARGETS kindora_${NAME} EXPORT Kindora-${NAME})
  endif()
  foreach(target IN LISTS ARG_TARGETS)
    target_compile_features(${target} PUBLIC cxx_std_20)
    kindora_install_headers(${target} ${NAME} "${ARG_WITHOUT}")
    get_target_property(uri ${target} QT_QML_MODULE_URI)
    if(uri)
      kindora_install_qml_module(${target} ${NAME})
    endif()
    get_target_property(parts ${target} KINDORA_MODULE_PARTS)
    if(NOT parts)
      set(parts)
    endif()
    foreach(
      part IN
      ITEMS ${target}
      LISTS parts)
      string(REGEX REPLACE "^kindora_" "" exported ${part})
      set_target_properties(${part} PROPERTIES EXPORT_NAME ${exported})
    endforeach()
    add_dependencies(component_${NAME} ${target} ${parts})
    install(
      TARGETS ${target} ${parts}
      EXPORT Kindora-${NAME}
      ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} ${component}
      OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/kindora ${component}
      INCLUDES
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kindora)
  endforeach()
  install(
    EXPORT Kindora-${NAME}
    NAMESPACE Kindora::
    DESTINATION ${KINDORA_PACKAGE_FOLDER}
    ${component})
  kindora_install_needs(${NAME} "${ARG_NEEDS}" "${ARG_PACKAGES}")
endfunction()

# The headers beside the target's sources, at their paths from the top folder.
function(kindora_install_headers TARGET COMPONENT WITHOUT)
  get_target_property(source_folder ${TARGET} SOURCE_DIR)
  get_target_property(sources ${TARGET} SOURCES)
  set(folders)
  foreach(source IN LISTS sources)
    if(NOT source MATCHES "^[/$]")
      cmake_path(GET source PARENT_PATH folder)
      cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY ${source_folder} NORMALIZE)
      list(APPEND folders ${folder})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES folders)
  foreach(folder IN LISTS folders)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE path)
    file(
      GLOB headers CONFIGURE_DEPENDS
      RELATIVE ${PROJECT_SOURCE_DIR}
      ${folder}/*.h)
    list(REMOVE_ITEM headers ${WITHOUT})
    list(TRANSFORM headers PREPEND ${PROJECT_SOURCE_DIR}/)
    install(
      FILES ${headers}
      DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kindora/${path}
      COMPONENT ${COMPONENT}
      EXCLUDE_FROM_ALL)
  endforeach()
endfunction()

# What other projects' QML tools read of the module (programs have all of it in their resources),
# and what their own QML types must know of its classes to derive from them.
function(kindora_install_qml_module TARGET COMPONENT)
  get_target_property(output ${TARGET} QT_QML_MODULE_OUTPUT_DIRECTORY)
  get_target_property(path ${TARGET} QT_QML_MODULE_TARGET_PATH)
  install(
    DIRECTORY ${output}/
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/kindora/qml/${path}
    COMPONENT ${COMPONENT}
    EXCLUDE_FROM_ALL FILES_MATCHING
    PATTERN "qmldir"
    PATTERN "*.qmltypes"
    PATTERN "*.qml")
  get_target_property(metatypes ${TARGET} INTERFACE_QT_META_TYPES_BUILD_FILE)
  set(folder ${CMAKE_INSTALL_LIBDIR}/kindora/metatypes)
  cmake_path(GET metatypes FILENAME name)
  install(
    FILES ${metatypes}
    DESTINATION ${folder}
    COMPONENT ${COMPONENT}
    EXCLUDE_FROM_ALL)
  set(wants_them $<BOOL:$<TARGET_PROPERTY:QT_CONSUMES_METATYPES>>)
  target_sources(
    ${TARGET} INTERFACE $<INSTALL_INTERFACE:$<${wants_them}:$<INSTALL_PREFIX>/${folder}/${name}>>)
endfunction()

# Installs with the component those that it needs, and a file that tells which they are.
function(kindora_install_needs COMPONENT NEEDS PACKAGES)
  set(components)
  set(packages)
  foreach(need IN LISTS NEEDS)
    get_property(its_components GLOBAL PROPERTY KINDORA_COMPONENTS_OF_${need})
    get_property(its_packages GLOBAL PROPERTY KINDORA_PACKAGES_OF_${need})
    list(APPEND components ${its_components})
    list(APPEND packages ${its_packages})
  endforeach()
  list(REMOVE_DUPLICATES components)
  foreach(need IN LISTS components)
    add_dependencies(component_${COMPONENT} component_${need})
    # The folder's own install script once more, for the other component.
    install(
      CODE "set(CMAKE_INSTALL_COMPONENT ${need})
  include(\"${CMAKE_CURRENT_BINARY_DIR}/cmake_install.cmake\")
  set(CMAKE_INSTALL_COMPONENT ${COMPONENT})"
      COMPONENT ${COMPONENT}
      EXCLUDE_FROM_ALL)
  endforeach()
  list(APPEND components ${COMPONENT})
  list(APPEND packages ${PACKAGES})
  list(REMOVE_DUPLICATES packages)
  set_property(GLOBAL PROPERTY KINDORA_COMPONENTS_OF_${COMPONENT} ${components})
  set_property(GLOBAL PROPERTY KINDORA_PACKAGES_OF_${COMPONENT} ${packages})
  file(
    CONFIGURE
    OUTPUT
    ${CMAKE_CURRENT_BINARY_DIR}/Needs-${COMPONENT}.cmake
    CONTENT
    [[
set(_kindora_components "@components@")
set(_kindora_packages "@packages@")
]]
    @ONLY)
  install(
    FILES ${CMAKE_CURRENT_BINARY_DIR}/KindoraConfig.cmake
          ${CMAKE_CURRENT_BINARY_DIR}/KindoraConfigVersion.cmake
          ${CMAKE_CURRENT_BINARY_DIR}/Needs-${COMPONENT}.cmake
    DESTINATION ${KINDORA_PACKAGE_FOLDER}
    COMPONENT ${COMPONENT}
    EXCLUDE_FROM_ALL)
  # Each carries the licence, since each may be all that is installed.
  install(
    FILES ${PROJECT_SOURCE_DIR}/LICENSE
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/kindora-${COMPONENT}
    COMPONENT ${COMPONENT}
    EXCLUDE_FROM_ALL)
endfunction()
