# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT

# velm_configure(TARGET): the language, the warnings and the sanitizers that every target of the project shares.
function(velm_configure target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF
    RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(VELM_SANITIZE OR VELM_BUILD_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    get_target_property(type ${target} TYPE)
    if(type STREQUAL "EXECUTABLE")
      target_sources(${target} PRIVATE "${PROJECT_SOURCE_DIR}/cmake/sanitizer_options.cpp")
    endif()
  endif()
  if(VELM_BUILD_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
endfunction()

# velm_folder(TARGET FOLDER): the sources in FOLDER are the target's and may include what it links. tests/style holds
# every file to that, and wants every folder to have its target.
function(velm_folder target folder)
  set_property(GLOBAL APPEND PROPERTY VELM_FOLDERS "${folder}")
  set_property(GLOBAL PROPERTY "VELM_TARGET_OF_${folder}" ${target})
endfunction()

# velm_library(NAME LINKS LIBRARY...): the folder src/NAME as the static library velm_NAME. It sees the headers of the
# libraries that it links and of those below them, and no others. No exception leaves a module: a release has no tables
# that would lead one through, which would be a sixteenth of the demo.
function(velm_library name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${name}/*.cpp" "${PROJECT_SOURCE_DIR}/src/${name}/*/*.cpp")
  add_library(velm_${name} STATIC ${sources})
  velm_configure(velm_${name})
  target_compile_options(velm_${name} PRIVATE "$<$<CONFIG:Release>:-fno-exceptions;-fno-asynchronous-unwind-tables>")
  velm_folder(velm_${name} src/${name})
  target_include_directories(velm_${name} PUBLIC "${PROJECT_SOURCE_DIR}/src")
  foreach(lower IN LISTS ARG_LINKS)
    target_link_libraries(velm_${name} PUBLIC velm_${lower})
  endforeach()
endfunction()

# velm_embed(TARGET HEADER [PREFIX NAME_] FILE...): every file becomes one constant of the target, named after the file
# behind the prefix; the header declares them.
function(velm_embed target header)
  cmake_parse_arguments(ARG "" "PREFIX" "" ${ARGN})
  foreach(input IN LISTS ARG_UNPARSED_ARGUMENTS)
    get_filename_component(file "${input}" NAME)
    get_filename_component(name "${input}" NAME_WE)
    set(generated "${CMAKE_CURRENT_BINARY_DIR}/assets/${file}.cpp")
    add_custom_command(OUTPUT "${generated}"
      COMMAND "${CMAKE_COMMAND}" "-DINPUT=${input}" "-DOUTPUT=${generated}" "-DNAME=${ARG_PREFIX}${name}" "-DHEADER=${header}"
        -P "${PROJECT_SOURCE_DIR}/cmake/EmbedAsset.cmake"
      DEPENDS "${input}" "${PROJECT_SOURCE_DIR}/cmake/EmbedAsset.cmake"
      COMMENT "Embedding ${file}" VERBATIM)
    target_sources(${target} PRIVATE "${generated}")
  endforeach()
endfunction()

# velm_machine(NAME SOURCES FILE... LINKS LIBRARY...): the folder machines/NAME as velm_NAME, everything that one machine
# puts behind the seam. It sees the seam, what lies below it, and the libraries of its machine; never another machine,
# never the demo. An executable links exactly one. Objects, not an archive: the seam's own part needs them as much as
# they need it.
function(velm_machine name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  if(ARG_LINKS MATCHES "velm_")
    message(FATAL_ERROR "the machine ${name} may see the seam alone, not ${ARG_LINKS}")
  endif()
  list(TRANSFORM ARG_SOURCES PREPEND "${PROJECT_SOURCE_DIR}/machines/${name}/")
  add_library(velm_${name} OBJECT ${ARG_SOURCES})
  velm_configure(velm_${name})
  velm_folder(velm_${name} machines/${name})
  target_include_directories(velm_${name} PUBLIC "${PROJECT_SOURCE_DIR}/machines")
  target_link_libraries(velm_${name} PUBLIC velm_platform PRIVATE ${ARG_LINKS})
endfunction()
