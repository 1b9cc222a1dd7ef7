# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# cpack runs this on what it has staged: NAME.tar.gz that depends on the files alone, not on who packs them, when, in what
# order the folder lists them, or what umask they had. The other formats of tar have fields that its versions fill in
# differently.
find_program(VELM_TAR NAMES gtar tar REQUIRED)
find_program(VELM_GZIP gzip REQUIRED)
set(tarball "${CPACK_TOPLEVEL_DIRECTORY}/${CPACK_PACKAGE_FILE_NAME}.tar.gz")
cmake_path(GET CPACK_TEMPORARY_DIRECTORY PARENT_PATH folder)
cmake_path(GET CPACK_TEMPORARY_DIRECTORY FILENAME name)
execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C "${VELM_TAR}" -C "${folder}" --format=gnu --sort=name
    "--mtime=@$ENV{SOURCE_DATE_EPOCH}" --owner=0 --group=0 --numeric-owner --mode=u+rw,go=u,go-w -c "${name}"
  COMMAND "${VELM_GZIP}" -9n
  OUTPUT_FILE "${tarball}" COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_EXTERNAL_BUILT_PACKAGES "${tarball}")
