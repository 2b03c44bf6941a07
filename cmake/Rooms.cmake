# A room holds two libraries: <room>_logic, which sees the standard library only, and <room>_windows, which
# sees Qt. Logic gets no Qt include path and no Qt library, so a Qt header in it does not compile.
function(kitwright_logic room)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
  add_library(${room}_logic STATIC ${ARG_SOURCES})
  target_link_libraries(${room}_logic PUBLIC kitwright_options ${ARG_LINK})
  list(TRANSFORM ARG_SOURCES PREPEND ${room}/ OUTPUT_VARIABLE files)
  set_property(GLOBAL APPEND PROPERTY KITWRIGHT_LOGIC_SOURCES ${files})
endfunction()

function(kitwright_windows room)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK")
  add_library(${room}_windows STATIC ${ARG_SOURCES})
  set_target_properties(${room}_windows PROPERTIES AUTOMOC ON AUTOUIC ON)
  target_link_libraries(${room}_windows PUBLIC kitwright_options Qt6::Widgets ${ARG_LINK})
endfunction()

# The list of all logic files, for the check that none of them includes a Qt header.
function(kitwright_write_logic_sources)
  get_property(files GLOBAL PROPERTY KITWRIGHT_LOGIC_SOURCES)
  list(JOIN files "\n" lines)
  file(WRITE ${CMAKE_BINARY_DIR}/logic_sources.txt "${lines}\n")
endfunction()
