# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# The toolchain of the preset web: emscripten's own, wherever it is installed.
find_program(VELM_EMCC emcc REQUIRED)
file(REAL_PATH "${VELM_EMCC}" VELM_EMCC)
get_filename_component(VELM_EMSCRIPTEN "${VELM_EMCC}" DIRECTORY)
include("${VELM_EMSCRIPTEN}/cmake/Modules/Platform/Emscripten.cmake")
