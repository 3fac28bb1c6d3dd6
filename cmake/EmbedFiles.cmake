# embed_files(TARGET NAMESPACE FILE...): adds a source to TARGET that holds the files, and a header
# <embedded/NAMESPACE.h> with `tqcim::embedded::NAMESPACE::kFiles`, an array of name and contents.
function(embed_files target namespace)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/embedded)
  set(source ${folder}/${namespace}.cpp)
  set(header ${folder}/${namespace}.h)
  list(LENGTH ARGN count)
  file(WRITE ${header}.new
"#pragma once\n#include <string_view>\nnamespace tqcim::embedded::${namespace} {\n\
struct File {\n  std::string_view name;\n  std::string_view contents;\n};\n\
extern const File kFiles[${count}];\n}\n")
  file(COPY_FILE ${header}.new ${header} ONLY_IF_DIFFERENT)
  list(JOIN ARGN "|" files)
  add_custom_command(
    OUTPUT ${source}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${source} -DNAMESPACE=${namespace} "-DFILES=${files}"
            -P ${PROJECT_SOURCE_DIR}/cmake/WriteEmbeddedFiles.cmake
    DEPENDS ${ARGN} ${PROJECT_SOURCE_DIR}/cmake/WriteEmbeddedFiles.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${source})
  target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
