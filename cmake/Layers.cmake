# tidewell_layer(NAME FOLDERS folder... LINKS target...): a library made of all sources below the
# given folders of src/. Its headers are reached as "folder/header.h" through an include root that
# holds those folders alone, so that including a layer which is not linked does not compile.

function(tidewell_layer name)
  cmake_parse_arguments(LAYER "" "" "FOLDERS;LINKS" ${ARGN})
  set(include_root ${CMAKE_BINARY_DIR}/layers/${name})
  file(MAKE_DIRECTORY ${include_root})
  set(sources)
  foreach(folder IN LISTS LAYER_FOLDERS)
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${include_root}/${folder} SYMBOLIC)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS
      ${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp ${CMAKE_SOURCE_DIR}/src/${folder}/*.h)
    list(APPEND sources ${found})
  endforeach()
  # Of the hosts' folders only that of the system that is built for.
  if(CMAKE_SYSTEM_NAME STREQUAL "Darwin")
    list(FILTER sources EXCLUDE REGEX "/src/platform/linux/")
  else()
    list(FILTER sources EXCLUDE REGEX "/src/platform/macos/")
  endif()
  # A file that ends in _screen or lies in a folder qt belongs to the window, not to the engine.
  list(FILTER sources EXCLUDE REGEX "_screen\\.(cpp|h)$|/src/[a-z]+/qt/")
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(${name} PUBLIC ${include_root})
  target_link_libraries(${name} PUBLIC ${LAYER_LINKS} PRIVATE tidewell_compile_options)
endfunction()
