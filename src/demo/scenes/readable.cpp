// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "demo/scenes/readable.h"

#include <bit>

namespace velm {

namespace {

/// The letters of the code points from U+00C0 up to U+017F: À to ÿ, then Ā to ſ.
constexpr std::uint32_t firstAccented = 0xC0;
constexpr std::string_view bases = "AAAAAAACEEEEIIIIDNOOOOOxOUUUUYPsaaaaaaaceeeeiiiidnooooo:ouuuuypy"
                                   "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiIiJjKkkLlLlLlL"
                                   "lLlNnNnNnnNnOoOoOoOoRrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
constexpr std::string_view marks =
    "`'^~\". ,`'^\"`'^\"-~`'^~\" /`'^\"'  `'^~\". ,`'^\"`'^\"-~`'^~\"-/`'^\"' \""
    "~~^^,,''^^..^^^^--~~^^..,,^^^^^^..,,^^--~~~~^^,,.   ^^,, '',,^^."
    ".//'',,^^'  ~~^^\"\"  '',,^^''^^,,^^,,^^--~~~~^^..\"\",,^^^^\"''..^^ ";
static_assert(bases.size() == 0x180 - firstAccented && marks.size() == bases.size());

constexpr std::uint32_t firstCombining = 0x300, lastCombining = 0x36F;

/// The code point that a text begins with, and its length in bytes.
struct CodePoint {
    std::uint32_t value;
    std::size_t bytes;
};

CodePoint firstOf(std::string_view text) {
    const auto lead = static_cast<std::uint8_t>(text.front());
    const auto bytes = static_cast<std::size_t>(std::countl_one(lead));
    const CodePoint single = {lead, 1};
    if (bytes < 2 || bytes > 4 || bytes > text.size()) {
        return single;
    }
    std::uint32_t value = lead & (0x7FU >> bytes);
    for (const char c : text.substr(1, bytes - 1)) {
        if ((static_cast<std::uint8_t>(c) & 0xC0U) != 0x80) {
            return single;
        }
        value = (value << 6) | (static_cast<std::uint8_t>(c) & 0x3FU);
    }
    return {value, bytes};
}

ReadableLetter letterOf(std::uint32_t code) {
    if (code >= ' ' && code <= '~') {
        return {static_cast<char>(code)};
    }
    if (code >= firstAccented && code - firstAccented < bases.size()) {
        return {bases[code - firstAccented], marks[code - firstAccented]};
    }
    return {};
}

} // namespace

ReadableLetter takeLetter(std::string_view& text) {
    const CodePoint first = firstOf(text);
    text.remove_prefix(first.bytes);
    while (!text.empty()) {
        const CodePoint next = firstOf(text);
        if (next.value < firstCombining || next.value > lastCombining) {
            break;
        }
        text.remove_prefix(next.bytes);
    }
    return letterOf(first.value);
}

std::int32_t countLetters(std::string_view text) {
    std::int32_t count = 0;
    for (; !text.empty(); ++count) {
        takeLetter(text);
    }
    return count;
}

} // namespace velm
