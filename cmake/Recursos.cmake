# The program reads its data beside its executable, so the build tree gets a copy of each data file.
function(copiar_recursos objetivo)
  file(GLOB_RECURSE datos CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}
       ${CMAKE_SOURCE_DIR}/recursos/* ${CMAKE_SOURCE_DIR}/ayuda/*)
  set(copias)
  foreach(dato IN LISTS datos)
    add_custom_command(
      OUTPUT ${CMAKE_BINARY_DIR}/${dato}
      COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${dato} ${CMAKE_BINARY_DIR}/${dato}
      DEPENDS ${CMAKE_SOURCE_DIR}/${dato}
      VERBATIM)
    list(APPEND copias ${CMAKE_BINARY_DIR}/${dato})
  endforeach()
  add_custom_target(recursos_copiados ALL DEPENDS ${copias})
  add_dependencies(${objetivo} recursos_copiados)
endfunction()
