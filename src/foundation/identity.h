// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// The identification record that every module carries: five words that stay readable in the finished binary,
// so that `strings velm4030` lists what it is built of. Nothing reads them at run time.
//
//     const IDENTITY LIST_identity = makeIdentity("LIST", "20150611", "ZENDORAK", "C", "CODE");
#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

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
consteval IDENTITY makeIdentity(std::string_view module, std::string_view second, std::string_view third,
                                std::string_view fourth, std::string_view fifth) {
    IDENTITY identity{};
    const auto pad = [](char(&field)[9], std::string_view word) {
        std::fill(std::begin(field), std::end(field) - 1, ' ');
        std::copy(word.begin(), word.end(), std::begin(field));
        field[8] = '\0';
    };
    pad(identity.module, module);
    pad(identity.second, second);
    pad(identity.third, third);
    pad(identity.fourth, fourth);
    pad(identity.fifth, fifth);
    return identity;
}

} // namespace velm
