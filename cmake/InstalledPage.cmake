# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT

# velm_install_page(FILE FOLDER COMPONENT INSTALLED...): installs a page of Markdown to FOLDER/FILE, as it stands in the
# checkout but for its links to other files: those that are not INSTALLED beside it become plain words.
function(velm_install_page file folder component)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/${file}")
  cmake_path(GET file PARENT_PATH place)
  file(READ "${PROJECT_SOURCE_DIR}/${file}" text)
  string(REGEX MATCHALL "\\([A-Za-z0-9_./-]+" links "${text}") # and words in brackets, which are no links below
  list(REMOVE_DUPLICATES links)
  foreach(link IN LISTS links)
    string(SUBSTRING "${link}" 1 -1 target)
    cmake_path(APPEND place "${target}" OUTPUT_VARIABLE path)
    cmake_path(NORMAL_PATH path)
    if(NOT path IN_LIST ARGN)
      string(REGEX REPLACE "!?\\[([^]]*)\\]\\(${target}(#[^)]*)?\\)" "\\1" text "${text}")
    endif()
  endforeach()
  file(CONFIGURE OUTPUT "pages/${component}/${file}" CONTENT "@text@" @ONLY)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/pages/${component}/${file}" DESTINATION "${folder}/${place}"
    COMPONENT ${component})
endfunction()
