option(TQCIM_PRECOMPILED_HEADERS "Compile what nearly every source includes only once" OFF)

# The longest of the standard headers, and those of the management service, for builds in which all
# is compiled anew. A source that forgets one of them still fails in the builds without.
function(precompile_headers)
  if(NOT TQCIM_PRECOMPILED_HEADERS)
    return()
  endif()
  file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/common_headers.cpp CONTENT "")
  add_library(common_headers OBJECT ${PROJECT_BINARY_DIR}/common_headers.cpp)
  target_link_libraries(common_headers PRIVATE platform)
  target_precompile_headers(common_headers PRIVATE
    <algorithm> <array> <atomic> <cstdint> <cstring> <filesystem> <functional> <map> <memory>
    <optional> <span> <string> <string_view> <variant> <vector> <platform/wmi.h>)
  foreach(library ${ARGV})
    target_precompile_headers(${library} REUSE_FROM common_headers)
  endforeach()
endfunction()
