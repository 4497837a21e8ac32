# tidewell_ui: the window's components and screens, one QML module named Tidewell. What only the
# window has lies in files named *_screen.{h,cpp}, in the folders src/kit/qt and src/shell/qt, and in
# the .qml files of every folder.
#
# A program links tidewell_ui and calls importTidewellModule() of kit/qt/module.h before it loads a
# file.

# Global, for tests and tools link the window too.
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Qml Quick ShaderTools Widgets)
qt_standard_project_setup()
# moc is to see what the compiler sees, which in this standard's own mode knows no word "linux".
list(INSERT CMAKE_CXX_COMPILER_PREDEFINES_COMMAND 1 -std=c++20)

file(GLOB_RECURSE qml_files RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *.qml)
file(GLOB_RECURSE screen_sources CONFIGURE_DEPENDS
  *_screen.cpp *_screen.h kit/qt/*.cpp kit/qt/*.h shell/qt/*.cpp shell/qt/*.h)
# The program's entry is no part of the library.
list(FILTER screen_sources EXCLUDE REGEX "/shell/qt/main\\.cpp$")

foreach(file IN LISTS qml_files)
  file(STRINGS ${file} singleton REGEX "^pragma Singleton" LIMIT_COUNT 1)
  if(singleton)
    set_source_files_properties(${file} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  endif()
endforeach()

option(TIDEWELL_COMPILE_QML "Compile the window's .qml files ahead of time" ON)
set(no_cachegen)
if(NOT TIDEWELL_COMPILE_QML)
  set(no_cachegen NO_CACHEGEN)  # a change of a file is then built in a second
endif()

qt_add_library(tidewell_ui STATIC)
qt_add_qml_module(tidewell_ui
  URI Tidewell
  VERSION 1.0
  RESOURCE_PREFIX /
  DEPENDENCIES QtQuick
  OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/Tidewell
  QML_FILES ${qml_files}
  SOURCES ${screen_sources}
  ${no_cachegen})

file(GLOB shaders RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS kit/shaders/*.frag)
qt_add_shaders(tidewell_ui shaders
  PREFIX /Tidewell/shaders BASE kit/shaders FILES ${shaders})

file(GLOB logos CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/assets/logos/*.svg)
qt_add_resources(tidewell_ui logos
  PREFIX /Tidewell/logos BASE ${CMAKE_SOURCE_DIR}/assets/logos FILES ${logos})

qt_add_resources(tidewell_ui film
  PREFIX /Tidewell/film BASE ${CMAKE_SOURCE_DIR}/assets/film
  FILES ${CMAKE_SOURCE_DIR}/assets/film/onboarding.mp4)

target_link_libraries(tidewell_ui
  PUBLIC tidewell_core Qt6::Quick Qt6::Qml Qt6::Widgets
  INTERFACE tidewell_uiplugin)
# The generated registration includes the headers of types by their bare names.
set(header_folders ${screen_sources})
list(FILTER header_folders INCLUDE REGEX "\\.h$")
list(TRANSFORM header_folders REPLACE "/[^/]*$" "")
list(REMOVE_DUPLICATES header_folders)
target_include_directories(tidewell_ui PRIVATE ${header_folders})

# Compiling the generated code of one .qml file takes seconds, most of them for the same headers.
target_compile_options(tidewell_ui PRIVATE -Wpedantic)  # or own files could not use the headers
target_precompile_headers(tidewell_ui PRIVATE
  <QtQml/qqmlprivate.h> <QtQml/qqml.h> <QtQml/qjsengine.h> <QtQml/qjsprimitivevalue.h>
  <QtQml/qjsvalue.h> <QtQml/qqmlcomponent.h> <QtQml/qqmlcontext.h> <QtQml/qqmlengine.h>
  <QtQml/qqmllist.h> <QtCore/qabstractitemmodel.h> <QtCore/qdatetime.h> <QtCore/qobject.h>
  <QtCore/qtimer.h> <QtQuick/qquickitem.h> <string> <vector>)
set_target_properties(tidewell_ui PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 8)
# Only what is generated is joined, for own files have private names; only they get the warnings.
get_target_property(own_options tidewell_compile_options INTERFACE_COMPILE_OPTIONS)
set_source_files_properties(${screen_sources} PROPERTIES
  SKIP_UNITY_BUILD_INCLUSION ON COMPILE_OPTIONS "${own_options}")
