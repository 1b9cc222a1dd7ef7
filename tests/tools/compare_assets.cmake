# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# cmake -DPAINTER=<paint_assets> -DASSETS=<src/demo/assets> -DICON=<icon.pam> -DFOLDER=<work folder>
#   -P compare_assets.cmake
#
# Paints every asset into a folder and compares each with the committed file, to the byte. Only the scroll text is
# written by hand.
cmake_minimum_required(VERSION 3.24)
file(REMOVE_RECURSE "${FOLDER}")
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(COMMAND "${PAINTER}" "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${PAINTER}" --icons "${FOLDER}" COMMAND_ERROR_IS_FATAL ANY)
file(GLOB committed RELATIVE "${ASSETS}" "${ASSETS}/*")
list(REMOVE_ITEM committed scroll_text.txt)
list(LENGTH committed count)
if(count LESS 14)
  message(FATAL_ERROR "only ${count} assets below ${ASSETS}")
endif()
list(TRANSFORM committed PREPEND "${ASSETS}/")
foreach(file IN LISTS committed ICON)
  get_filename_component(name "${file}" NAME)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${file}" "${FOLDER}/${name}" RESULT_VARIABLE differs)
  if(differs)
    message(FATAL_ERROR "${name} is not what the painter paints")
  endif()
endforeach()
