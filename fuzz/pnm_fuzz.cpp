// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Feeds the netpbm decoder, with a size and, for the text types, up to a NUL.
#include "image/img.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    velm::IMG* img = velm::IMG_fromPNM(reinterpret_cast<const char*>(data), size);
    if (img != nullptr) {
        velm::IMG_delete(&img);
    }
    // Without a size, binary samples must be complete, which a hostile file's are not.
    const std::string text(reinterpret_cast<const char*>(data), size);
    const bool isText = size > 1 && text[0] == 'P' && text[1] >= '1' && text[1] <= '3';
    img = isText ? velm::IMG_fromPNM(text.c_str()) : nullptr;
    if (img != nullptr) {
        velm::IMG_delete(&img);
    }
    return 0;
}
