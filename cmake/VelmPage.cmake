# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# velm_page(TARGET [KIND demo] [TITLE title] [HEADERS header...] [WAITS function...]): makes the program TARGET, compiled
# by emscripten, one page, TARGET.html in the build folder. The title is the target's name unless given. JavaScript may
# call what web/page.h and the HEADERS declare. WAITS are the functions that may be on the stack while the program waits
# and that Asyncify does not find along the direct calls, because they call through a pointer; where it is not told them,
# it takes every such call for one that waits, which is larger and slower.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
get_filename_component(VELM_PAGE_ROOT "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)

function(velm_page target)
  cmake_parse_arguments(ARG "" "KIND;TITLE" "HEADERS;WAITS" ${ARGN})
  set(kind project)
  if(ARG_KIND)
    set(kind "${ARG_KIND}")
  endif()
  set(title "${target}")
  if(ARG_TITLE)
    set(title "${ARG_TITLE}")
  endif()
  set(machine "${VELM_PAGE_ROOT}/machines/web")
  set(folder "${VELM_PAGE_ROOT}/tools/page")

  set(exports _main)
  foreach(header IN ITEMS "${machine}/page.h" LISTS ARG_HEADERS)
    file(STRINGS "${header}" declared REGEX "^[a-z].*[ *]page[A-Z][A-Za-z]*\\(")
    list(TRANSFORM declared REPLACE ".*[ *](page[A-Za-z]*)\\(.*" "_\\1")
    list(APPEND exports ${declared})
  endforeach()
  list(JOIN exports "," exports)
  set(waits "")
  if(ARG_WAITS)
    list(JOIN ARG_WAITS "," functions)
    set(waits -sASYNCIFY_IGNORE_INDIRECT=1 "-sASYNCIFY_ADD=${functions}")
  endif()
  target_link_options(${target} PRIVATE
    -sMODULARIZE=1 -sEXPORT_NAME=makeVelm -sENVIRONMENT=web -sFILESYSTEM=0 -sINVOKE_RUN=0 -sALLOW_MEMORY_GROWTH=1
    -sEXPORTED_FUNCTIONS=${exports} -sEXPORTED_RUNTIME_METHODS=callMain,UTF8ToString,stringToUTF8
    -sASYNCIFY=1 -sASYNCIFY_IMPORTS=browserWaitForDisplay,browserWait -sASYNCIFY_STACK_SIZE=16384 ${waits}
    -sTOTAL_STACK=5242880) # newer emscripten gives 65536 by itself
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}"
    LINK_DEPENDS "${machine}/browser.js")

  # The program and what the page names, folded into one file.
  set(page "${CMAKE_BINARY_DIR}/${target}.html")
  file(GLOB parts CONFIGURE_DEPENDS "${folder}/*")
  add_custom_command(OUTPUT "${page}"
    COMMAND Python3::Interpreter "${folder}/fold.py" "${kind}" "${title}" "${target}" "${page}" "${folder}"
      "${CMAKE_BINARY_DIR}" "${VELM_PAGE_ROOT}/src/platform"
    DEPENDS ${target} ${parts} "${VELM_PAGE_ROOT}/src/platform/icon.pam"
    COMMENT "Folding ${target}.html" VERBATIM)
  add_custom_target(${target}_page ALL DEPENDS "${page}")
endfunction()
