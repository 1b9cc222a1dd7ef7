// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// Feeds the reader of IMG's text form; what it takes must survive another round.
#include "image/img.h"

#include <cstdlib>
#include <string>

namespace {

void requireRound(const velm::IMG* img) {
    char* const text = velm::IMG_toText(img);
    velm::IMG* again = velm::IMG_fromText(text);
    if (img->width != 0 && img->height != 0 && again == nullptr) {
        std::abort();
    }
    if (again != nullptr) {
        velm::IMG_delete(&again);
    }
    delete[] text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    velm::IMG* img = velm::IMG_fromText(text.c_str());
    if (img != nullptr) {
        requireRound(img);
        velm::IMG_delete(&img);
    }
    return 0;
}
