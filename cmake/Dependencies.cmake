# Header-only libraries of the build machine, behind a folder of their own: a cross build may not
# see the rest of the build machine's headers.
set(TQCIM_HEADER_LIBRARIES ${PROJECT_BINARY_DIR}/header-libraries)
file(MAKE_DIRECTORY ${TQCIM_HEADER_LIBRARIES})
foreach(library CLI nlohmann)
  find_path(TQCIM_${library}_PARENT NAMES ${library}/${library}.hpp ${library}/json.hpp
            PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  file(CREATE_LINK ${TQCIM_${library}_PARENT}/${library} ${TQCIM_HEADER_LIBRARIES}/${library}
       SYMBOLIC)
endforeach()
find_path(TQCIM_SimpleIni_PARENT NAMES SimpleIni.h
          PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(CREATE_LINK ${TQCIM_SimpleIni_PARENT}/SimpleIni.h ${TQCIM_HEADER_LIBRARIES}/SimpleIni.h
     SYMBOLIC)
add_library(header_libraries INTERFACE)
target_include_directories(header_libraries SYSTEM INTERFACE ${TQCIM_HEADER_LIBRARIES})
