set(TQCIM_SANITIZERS "" CACHE STRING "Sanitizers to build with, as -fsanitize= takes them")

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

if(TQCIM_SANITIZERS)
  add_compile_options(-fsanitize=${TQCIM_SANITIZERS} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${TQCIM_SANITIZERS})
endif()

if(WIN32)
  # The modules and programs import nothing but system libraries.
  add_link_options(-static -static-libgcc -static-libstdc++)
else()
  add_link_options(-Wl,--no-undefined)
endif()
