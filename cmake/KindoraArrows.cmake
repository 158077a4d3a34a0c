# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0

# kindora_write_targets(FILE)
# Writes what every target of the tree declares that it links, for tools/check-arrows.py:
#
#   {"targets": [{"name": "kindora_model", "type": "STATIC_LIBRARY", "folder": "model",
#                 "links": ["kindora_platform", "Qt6::Core"]}, ...],
#    "external": {"Qt6::Gui": ["Qt6::Core"], ...}}
#
# Aliases are resolved. To be called when all targets have been made.
function(kindora_write_targets FILE)
  kindora_targets_below(targets ${PROJECT_SOURCE_DIR})
  set(lines)
  set(externals)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    get_target_property(folder ${target} SOURCE_DIR)
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${PROJECT_SOURCE_DIR})
    set(property LINK_LIBRARIES)
    if(type STREQUAL INTERFACE_LIBRARY)
      set(property INTERFACE_LINK_LIBRARIES)
    endif()
    kindora_links(links ${target} ${property})
    foreach(link IN LISTS links)
      if(link MATCHES "^Qt6::")
        list(APPEND externals ${link})
      endif()
    endforeach()
    list(JOIN links "\", \"" links)
    if(links)
      set(links "\"${links}\"")
    endif()
    list(APPEND lines "  {\"name\": \"${target}\", \"type\": \"${type}\", \"folder\": \"${folder}\",
   \"links\": [${links}]}")
  endforeach()
  list(JOIN lines ",\n" targets_text)

  set(lines)
  set(seen)
  while(externals)
    list(POP_FRONT externals external)
    if(NOT external IN_LIST seen AND TARGET ${external})
      list(APPEND seen ${external})
      kindora_links(links ${external} INTERFACE_LINK_LIBRARIES)
      list(FILTER links INCLUDE REGEX "^Qt6::")
      list(APPEND externals ${links})
      list(JOIN links "\", \"" links)
      if(links)
        set(links "\"${links}\"")
      endif()
      list(APPEND lines "  \"${external}\": [${links}]")
    endif()
  endwhile()
  list(JOIN lines ",\n" externals_text)
  file(CONFIGURE OUTPUT ${FILE} CONTENT
       "{\"targets\": [\n@targets_text@],\n\"external\": {\n@externals_text@}}\n" @ONLY)
endfunction()

# The names that a target links, without generator expressions.
function(kindora_links OUT TARGET PROPERTY)
  get_target_property(declared ${TARGET} ${PROPERTY})
  set(links)
  foreach(link IN LISTS declared)
    # What only the build tree links counts as linked.
    string(REGEX REPLACE "^\\$<BUILD_INTERFACE:(.*)>$" "\\1" link "${link}")
    # Qt's own targets name each other without the version.
    string(REGEX REPLACE "^Qt::" "Qt6::" link "${link}")
    if(link MATCHES "^Qt6::[A-Za-z]+$")
      # Known, it may be, only in the folder that looked for it.
      list(APPEND links ${link})
    elseif(NOT link MATCHES "[$<>]" AND TARGET ${link})
      get_target_property(aliased ${link} ALIASED_TARGET)
      if(aliased)
        set(link ${aliased})
      endif()
      list(APPEND links ${link})
    endif()
  endforeach()
  list(REMOVE_DUPLICATES links)
  set(${OUT}
      ${links}
      PARENT_SCOPE)
endfunction()

# What is built in a folder and the folders below it, made by our functions or by others.
function(kindora_targets_below OUT FOLDER)
  get_property(
    targets
    DIRECTORY ${FOLDER}
    PROPERTY BUILDSYSTEM_TARGETS)
  set(built)
  foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL UTILITY)
      list(APPEND built ${target})
    endif()
  endforeach()
  get_property(
    folders
    DIRECTORY ${FOLDER}
    PROPERTY SUBDIRECTORIES)
  foreach(folder IN LISTS folders)
    kindora_targets_below(more ${folder})
    list(APPEND built ${more})
  endforeach()
  set(${OUT}
      ${built}
      PARENT_SCOPE)
endfunction()
