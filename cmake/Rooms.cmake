# A room holds two libraries: <room>_logic, which sees the standard library only, and <room>_windows, which
# sees Qt. Logic gets no Qt include path and no Qt library, so a Qt header in it does not compile.
function(kitwright_logic room)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
  if(ARG_SOURCES MATCHES "\\.cpp")
    add_library(${room}_logic STATIC ${ARG_SOURCES})
    target_link_libraries(${room}_logic PUBLIC kitwright_options ${ARG_LINK})
    kitwright_precompiled(${room}_logic logic)
  else()
    add_library(${room}_logic INTERFACE)
    target_link_libraries(${room}_logic INTERFACE kitwright_options ${ARG_LINK})
  endif()
  list(TRANSFORM ARG_SOURCES PREPEND ${room}/ OUTPUT_VARIABLE files)
  set_property(GLOBAL APPEND PROPERTY KITWRIGHT_LOGIC_SOURCES ${files})
endfunction()

function(kitwright_windows room)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
  add_library(${room}_windows STATIC ${ARG_SOURCES})
  set_target_properties(${room}_windows PROPERTIES AUTOMOC ON AUTOUIC ON)
  target_link_libraries(${room}_windows PUBLIC kitwright_options Qt6::Widgets ${ARG_LINK})
  kitwright_precompiled(${room}_windows windows)
endfunction()

# Gives a target the precompiled headers of its layer: "logic" or "windows". They only save time: every source names
# the headers that it needs.
function(kitwright_precompiled target layer)
  if(KITWRIGHT_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM precompiled_${layer})
  endif()
endfunction()

if(KITWRIGHT_PRECOMPILE)
  foreach(layer logic windows)
    add_library(precompiled_${layer} STATIC ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
    target_link_libraries(precompiled_${layer} PRIVATE kitwright_options)
    target_precompile_headers(precompiled_${layer} PRIVATE
      <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <span> <string> <string_view> <utility>
      <vector>)
  endforeach()
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
  target_link_libraries(precompiled_windows PRIVATE Qt6::Widgets)
  target_precompile_headers(precompiled_windows PRIVATE <QtWidgets>)
endif()

# The list of all logic files, for the check that none of them includes a Qt header.
function(kitwright_write_logic_sources)
  get_property(files GLOBAL PROPERTY KITWRIGHT_LOGIC_SOURCES)
  list(JOIN files "\n" lines)
  file(WRITE ${CMAKE_BINARY_DIR}/logic_sources.txt "${lines}\n")
endfunction()
