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
  # The same sources make the same bytes.
  add_link_options(-Wl,--no-insert-timestamp)
else()
  add_link_options(-Wl,--no-undefined)
  if(CMAKE_BUILD_TYPE STREQUAL "Release")
    # Hardened as Debian builds its packages (hardening=+all), and free of the build's own paths.
    add_compile_options(-fstack-protector-strong -Wformat -Werror=format-security
                        -D_FORTIFY_SOURCE=2 -Wdate-time -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
    add_link_options(-Wl,-z,relro,-z,now)
    # Half of the start of a program was the binding of libstdc++. The modules share nothing of it.
    add_link_options(-nodefaultlibs -Wl,--exclude-libs,ALL -Wl,--gc-sections)
    # The compiler's own list has libm as well, for parts of libstdc++ of which nothing is left.
    set(CMAKE_CXX_STANDARD_LIBRARIES "-Wl,-Bstatic -lstdc++ -lgcc -lgcc_eh -Wl,-Bdynamic -lc")
  endif()
endif()
