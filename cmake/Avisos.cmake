# avisos: the flags that every target of the house compiles with.
#
# Fused multiply-add stays off because the bearing of two equal points is an exact 0 only when both
# products round alike; fast-math stays off because the solver relies on comparisons with sentinels.
add_library(avisos INTERFACE)
if(MSVC)
  target_compile_options(avisos INTERFACE /W4 /permissive- /utf-8 /fp:precise
    $<$<BOOL:${QUINTALUZ_AVISOS_SON_ERRORES}>:/WX>)
else()
  target_compile_options(avisos INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion
    -ffp-contract=off -fno-fast-math
    $<$<BOOL:${QUINTALUZ_AVISOS_SON_ERRORES}>:-Werror>)
endif()

if(QUINTALUZ_SANEADORES)
  target_compile_options(avisos INTERFACE
    -fsanitize=${QUINTALUZ_SANEADORES} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(avisos INTERFACE -fsanitize=${QUINTALUZ_SANEADORES})
endif()
