# GoogleTest is built from Debian's sources with the flags of each build.
set(TQCIM_GOOGLETEST_SOURCES /usr/src/googletest CACHE PATH "GoogleTest's sources")
add_subdirectory(${TQCIM_GOOGLETEST_SOURCES} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(target gtest gtest_main gmock gmock_main)
  target_compile_options(${target} PRIVATE -w)
endforeach()
