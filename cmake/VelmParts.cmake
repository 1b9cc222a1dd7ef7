# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT

# The demo needs a compiler and libX11; the other parts of the build need more. What is missing here stops nothing else:
# it is said by the targets that cannot be built, and by the build of all of them.
find_package(PkgConfig QUIET)
find_package(CLI11 QUIET)
find_package(GTest QUIET)
find_package(SDL2 QUIET)
find_package(X11 QUIET)
find_package(ZLIB QUIET)
find_package(benchmark QUIET)
if(PkgConfig_FOUND)
  pkg_check_modules(DEFLATE QUIET IMPORTED_TARGET libdeflate)
endif()
# Sound goes through a real server where its stand-in for /dev/dsp is installed.
find_library(VELM_PULSE_DSP pulsedsp PATH_SUFFIXES pulseaudio)
if(VELM_PULSE_DSP)
  set(PULSE_DSP_FOUND TRUE)
endif()
set(VELM_TOOLS_NEED CLI11 SDL2 DEFLATE ZLIB)
set(VELM_TESTS_NEED ${VELM_TOOLS_NEED} GTest X11_Xfixes X11_Xss PULSE_DSP)

# velm_part(FOLDER LIST NEED NAME... TARGETS TARGET...): the folder, or, where one of the packages of packaging/packages.sh's
# LIST is missing, these of its targets, which say so.
function(velm_part folder list)
  cmake_parse_arguments(ARG "" "" "NEED;TARGETS" ${ARGN})
  set(missing "")
  foreach(name IN LISTS ARG_NEED)
    if(NOT ${name}_FOUND)
      list(APPEND missing ${name})
    endif()
  endforeach()
  if(NOT missing)
    add_subdirectory(${folder})
    return()
  endif()
  list(JOIN missing ", " missing)
  set(line "${folder} cannot be built without ${missing}. packaging/need.sh ${list} installs what is missing, then: cmake --preset release")
  message(STATUS "${line}")
  foreach(target IN LISTS ARG_TARGETS)
    set_property(GLOBAL APPEND PROPERTY VELM_MISSING "${target}=${line}")
  endforeach()
endfunction()

# velm_missing_targets(): the targets of the parts that are missing. To be called when all others are made, which look
# whether those are there.
function(velm_missing_targets)
  get_property(targets GLOBAL PROPERTY VELM_MISSING)
  foreach(entry IN LISTS targets)
    string(REGEX MATCH "^[^=]*" target "${entry}")
    string(REGEX REPLACE "^[^=]*=" "" line "${entry}")
    add_custom_target(${target} ALL COMMAND "${CMAKE_COMMAND}" -E echo "${line}" COMMAND "${CMAKE_COMMAND}" -E false
      COMMENT "${target}" VERBATIM)
  endforeach()
endfunction()
