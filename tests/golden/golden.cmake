# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# cmake -DCAPTURE=<velm4030-capture> -DNAME=<golden> -DARGUMENTS="--frames 400" -DEVERY=<n> -DFOLDER=<work folder>
#       [-DRENEW=ON] -P golden.cmake
#
# Captures frames and sound and compares their checksums with NAME.crc beside this file: a line for every nth frame and,
# where that leaves frames out, a line "first-last" before it, the checksum of the lines of all frames since the last one;
# then the sound's. On a difference the first differing line is named. RENEW writes NAME.crc instead.
cmake_minimum_required(VERSION 3.24)
set(golden "${CMAKE_CURRENT_LIST_DIR}/${NAME}.crc")
separate_arguments(arguments UNIX_COMMAND "${ARGUMENTS}")
execute_process(COMMAND "${CAPTURE}" ${arguments} --quiet --crc "${FOLDER}/${NAME}.crc" --audio "${FOLDER}/${NAME}.wav"
  COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS "${FOLDER}/${NAME}.crc" frames)
list(LENGTH frames count)
set(actual)
foreach(first RANGE 1 ${count} ${EVERY})
  math(EXPR before "${first} - 1")
  list(SUBLIST frames ${before} ${EVERY} span)
  list(LENGTH span length)
  math(EXPR last "${before} + ${length}")
  if(EVERY GREATER 1)
    string(MD5 sum "${span}")
    list(APPEND actual "${first}-${last} ${sum}")
  endif()
  if(length EQUAL EVERY)
    list(POP_BACK span line)
    list(APPEND actual "${line}")
  endif()
endforeach()
file(SHA256 "${FOLDER}/${NAME}.wav" sound)
list(APPEND actual "sound ${sound}")

if(RENEW)
  list(JOIN actual "\n" text)
  file(WRITE "${golden}" "${text}\n")
  return()
endif()
file(STRINGS "${golden}" expected)
list(LENGTH expected lines)
if(lines LESS 2)
  message(FATAL_ERROR "${golden} is empty")
endif()
foreach(a e IN ZIP_LISTS actual expected)
  if(NOT "${a}" STREQUAL "${e}")
    message(FATAL_ERROR "the first difference: ${a}, not ${e}. Look at it:\n  ${CAPTURE} ${ARGUMENTS} --ppm FOLDER")
  endif()
endforeach()
