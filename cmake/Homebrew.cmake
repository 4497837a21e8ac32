# On a Mac: where Homebrew has put the libraries that it keeps out of the way of the system's own.

if(CMAKE_HOST_SYSTEM_NAME STREQUAL "Darwin")
  find_program(TIDEWELL_BREW brew)
  foreach(package icu4c expat qt)
    if(TIDEWELL_BREW)
      execute_process(COMMAND ${TIDEWELL_BREW} --prefix ${package}
        OUTPUT_VARIABLE prefix OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
      list(APPEND CMAKE_PREFIX_PATH ${prefix})
    endif()
  endforeach()
endif()
