// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The identification record that every module carries: five words that stay readable in the finished binary,
// so that `strings velm4030` lists what it is built of. Nothing reads them at run time.
//
//     const IDENTITY LIST_identity = makeIdentity("LIST", "20150611", "ZENDORAK", "C", "CODE");
#pragma once

namespace velm {

/// Five words of 8 characters, padded with spaces and closed by a NUL each. The module's word comes first;
/// the date (YYYYMMDD), the author's tag, the language or platform and "CODE" follow in an order of the
/// module's own.
struct IDENTITY {
    char module[9];
    char second[9];
    char third[9];
    char fourth[9];
    char fifth[9];
};

/// Pads the five words. A word longer than 8 characters does not compile.
consteval IDENTITY makeIdentity(const char* module, const char* second, const char* third, const char* fourth,
                                const char* fifth) {
    IDENTITY identity{};
    const auto pad = [](char(&field)[9], const char* word) {
        char padded[8] = {' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
        for (int i = 0; word[i] != '\0'; ++i) {
            padded[i] = word[i]; // a ninth character has no place, so it is no constant
        }
        for (int i = 0; i < 8; ++i) {
            field[i] = padded[i];
        }
    };
    pad(identity.module, module);
    pad(identity.second, second);
    pad(identity.third, third);
    pad(identity.fourth, fourth);
    pad(identity.fifth, fifth);
    return identity;
}

} // namespace velm
