# For a Linux system that compiles for macOS 13 and later: see tools/macos_build, which lays out what
# is named here.

set(from ${CMAKE_CURRENT_LIST_DIR}/../build/macos)
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR arm64)
set(CMAKE_OSX_SYSROOT "")
set(CMAKE_OSX_DEPLOYMENT_TARGET "")
set(CMAKE_C_COMPILER ${from}/bin/cc)
set(CMAKE_CXX_COMPILER ${from}/bin/c++)
set(CMAKE_AR ${from}/bin/ar)
set(CMAKE_RANLIB ${from}/bin/ranlib)
set(CMAKE_INSTALL_NAME_TOOL /bin/true)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(ICU_INCLUDE_DIR ${from}/include)
set(ICU_UC_LIBRARY_RELEASE ${from}/stubs/libicuuc.tbd)
set(ICU_I18N_LIBRARY_RELEASE ${from}/stubs/libicui18n.tbd)
set(EXPAT_INCLUDE_DIR ${from}/include)
set(EXPAT_LIBRARY ${from}/stubs/libexpat.tbd)
