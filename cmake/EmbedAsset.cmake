# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# cmake -DINPUT=logo.pbm -DOUTPUT=logo.pbm.cpp -DNAME=logo -DHEADER=demo/assets.h -P EmbedAsset.cmake
#
# Writes the file's bytes as the constant velm::assets::NAME, with a NUL behind them that does not count. The header
# declares it.
file(READ "${INPUT}" bytes HEX)
string(LENGTH "${bytes}" digits)
math(EXPR size "${digits} / 2")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
file(WRITE "${OUTPUT}" "// Generated from an asset file; do not edit.
#include \"${HEADER}\"

namespace velm::assets {
namespace {
constexpr unsigned char bytes[] = {${bytes}0x00};
}
const ASSET ${NAME} = {reinterpret_cast<const char*>(bytes), ${size}};
}
")
