# Writes a C++ source that holds FILES, with | between them, as byte arrays (raw strings would meet
# compilers' limits).
string(REPLACE "|" ";" FILES "${FILES}")
set(arrays "")
set(entries "")
set(index 0)
foreach(file IN LISTS FILES)
  file(READ ${file} hex HEX)
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${hex}")
  get_filename_component(name ${file} NAME)
  string(APPEND arrays "const char kFile${index}[] = {${bytes}'\\0'};\n")
  string(APPEND entries "    {\"${name}\", {kFile${index}, sizeof(kFile${index}) - 1}},\n")
  math(EXPR index "${index} + 1")
endforeach()
get_filename_component(folder ${OUTPUT} DIRECTORY)
file(WRITE ${OUTPUT}
"#include \"embedded/${NAMESPACE}.h\"\nnamespace tqcim::embedded::${NAMESPACE} {\nnamespace {\n\
${arrays}}\nextern const File kFiles[${index}];\nconst File kFiles[${index}] = {\n${entries}};\n}\n")
