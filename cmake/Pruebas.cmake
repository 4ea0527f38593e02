# prueba(NAME FUENTES ... VE ... [VENTANA])
#
# One GoogleTest executable, registered with CTest under its own name.
#   FUENTES  sources; the folder's tests/comun main() starts the application object that Qt needs
#   VE       libraries it links
#   VENTANA  needs real windows (X display, GL); the others run on Qt's offscreen platform
function(prueba nombre)
  cmake_parse_arguments(P "VENTANA" "" "FUENTES;VE" ${ARGN})
  add_executable(${nombre} ${P_FUENTES})
  set_target_properties(${nombre} PROPERTIES AUTOMOC ON)
  target_include_directories(${nombre} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${nombre} PRIVATE ${P_VE} GTest::gtest avisos)
  target_compile_definitions(${nombre} PRIVATE
    QT_NO_KEYWORDS QUINTALUZ_FUENTES="${CMAKE_SOURCE_DIR}" QUINTALUZ_CONSTRUIDO="${CMAKE_BINARY_DIR}")
  add_test(NAME ${nombre} COMMAND ${nombre})
  if(P_VENTANA)
    set(plataforma xcb)
  else()
    set(plataforma offscreen)
  endif()
  set_tests_properties(${nombre} PROPERTIES
    TIMEOUT 900
    ENVIRONMENT "QT_QPA_PLATFORM=${plataforma};QT_SCALE_FACTOR=1;LIBGL_ALWAYS_SOFTWARE=1")
  if(P_VENTANA) # one pointer, one focus: tests that need them take turns
    set_tests_properties(${nombre} PROPERTIES RESOURCE_LOCK pantalla)
  endif()
endfunction()
