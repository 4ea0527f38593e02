# carpeta(NAME [FUENTES ...] [CABECERAS ...] [VE ...] [QT ...])
#
# Declares one folder of the house as a static library that exports only its own headers.
#   FUENTES    sources of the folder
#   CABECERAS  its public headers; each is compiled alone by the target all_verify_interface_header_sets
#   VE         the folders to its left that it sees (and passes on)
#   QT         Qt modules it uses
# A folder that holds no code yet is an interface library: it keeps its place in the line and nothing else.
function(carpeta nombre)
  cmake_parse_arguments(C "" "" "FUENTES;CABECERAS;VE;QT" ${ARGN})
  list(TRANSFORM C_QT PREPEND Qt6::)
  if(NOT C_FUENTES)
    add_library(${nombre} INTERFACE)
    target_link_libraries(${nombre} INTERFACE ${C_VE} ${C_QT})
    return()
  endif()
  add_library(${nombre} STATIC ${C_FUENTES})
  target_sources(${nombre} PUBLIC FILE_SET HEADERS FILES ${C_CABECERAS})
  target_link_libraries(${nombre} PUBLIC ${C_VE} ${C_QT} PRIVATE avisos)
  set_target_properties(${nombre} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  if(C_QT)
    set_target_properties(${nombre} PROPERTIES AUTOMOC ON)
    target_compile_definitions(${nombre} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  endif()
endfunction()
