# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# velm::web and velm::velm for emscripten: modules and machine, compiled with the program that asks for them. Included
# by velm-config.cmake, which sets velm_include_folder.
set(VELM_WEB_ARCHIVE "" CACHE FILEPATH "libvelm_web.a that another build has made, to be linked instead of one's own")
include("${CMAKE_CURRENT_LIST_DIR}/VelmPage.cmake")

if(NOT TARGET velm_web)
  if(VELM_WEB_ARCHIVE)
    add_library(velm_web STATIC IMPORTED GLOBAL)
    set_target_properties(velm_web PROPERTIES IMPORTED_LOCATION "${VELM_WEB_ARCHIVE}")
    set(visibility INTERFACE)
  else()
    set(visibility PUBLIC)
    file(GLOB_RECURSE sources "${VELM_PAGE_ROOT}/src/*.cpp" "${VELM_PAGE_ROOT}/machines/*.cpp")
    foreach(asset "icon;platform/icon.pam;platform/icon_file.h" "kit_font_small;kit/fonts/font_small.obj2d;kit/fonts.h"
        "kit_font_medium;kit/fonts/font_medium.obj2d;kit/fonts.h" "kit_font_sheet;kit/fonts/font_sheet.pbm;kit/fonts.h")
      list(GET asset 0 name)
      list(GET asset 1 input)
      list(GET asset 2 header)
      set(generated "${CMAKE_CURRENT_BINARY_DIR}/velm/${name}.cpp")
      execute_process(COMMAND "${CMAKE_COMMAND}" "-DINPUT=${VELM_PAGE_ROOT}/src/${input}" "-DOUTPUT=${generated}" "-DNAME=${name}"
        "-DHEADER=${header}" -P "${CMAKE_CURRENT_LIST_DIR}/EmbedAsset.cmake" COMMAND_ERROR_IS_FATAL ANY)
      list(APPEND sources "${generated}")
    endforeach()
    add_library(velm_web STATIC ${sources})
    set_target_properties(velm_web PROPERTIES CXX_EXTENSIONS OFF)
    target_include_directories(velm_web PRIVATE "${VELM_PAGE_ROOT}/machines")
    # Loops over pixels are what a demo is made of: these are quick in every build.
    target_compile_options(velm_web PRIVATE -O3 -msimd128 -mbulk-memory -mnontrapping-fptoint -msign-ext -fno-exceptions)
  endif()
  target_include_directories(velm_web SYSTEM ${visibility} "${velm_include_folder}")
  target_compile_features(velm_web ${visibility} cxx_std_20)
  target_link_options(velm_web INTERFACE --js-library "${VELM_PAGE_ROOT}/machines/web/browser.js")
  add_library(velm::web ALIAS velm_web)
  add_library(velm::velm ALIAS velm_web)
endif()
