option(TQCIM_QUICK_BUILD
       "Compile what nearly every source includes only once, and several sources together" OFF)

# For builds in which all is compiled anew: the longest of the standard headers, and those of the
# management service, once. A source that forgets one of them still fails in the builds without.
function(precompile_headers)
  if(NOT TQCIM_QUICK_BUILD)
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

# Headers are most of what these targets' sources cost: so eight sources become one. Names in unnamed
# namespaces must then be different within a target.
function(compile_together)
  set_target_properties(${ARGV} PROPERTIES UNITY_BUILD ${TQCIM_QUICK_BUILD} UNITY_BUILD_BATCH_SIZE 8)
endfunction()
