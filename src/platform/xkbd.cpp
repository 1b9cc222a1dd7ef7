// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every implementation of the keyboard shares; XKBD_poll is the machine's.
#include "platform/xkbd.h"

#include "foundation/memory.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "platform/xdpy.h"

#include <cstdlib>

namespace velm {

const IDENTITY XKBD_identity = makeIdentity("XKBD", "XWINDOWS", "20150226", "ZENDORAK", "CODE");
std::uint8_t XKBD_verbose = 0;

namespace {

constexpr std::int32_t textBytes = 9;

/// The process's one record.
XKBD* keyboardOfProcess = nullptr;

XKBD* makeKeyboard() {
    const auto remove = [](XKBD** handle) { deleteRecord(handle, XKBD_error); };
    return newRecord<XKBD>(XKBD_error, remove, [](XKBD& keyboard) {
        keyboard.text = allocateArray<char>(textBytes);
        return !refused(keyboard.text == nullptr, XKBD_error);
    });
}

} // namespace

XKBD* XKBD_new() {
    if (keyboardOfProcess == nullptr) {
        keyboardOfProcess = makeKeyboard();
    }
    XDPY_selectInput();
    return keyboardOfProcess;
}

bool XKBD_isUsable(const XKBD* keyboard) {
    if (keyboard == nullptr) {
        XKBD_error();
        std::exit(0);
    }
    return !refused(!XDPY_isOpen(), XKBD_error);
}

const char* XKBD_getName(const XKBD* keyboard) {
    return refused(keyboard == nullptr, XKBD_error) ? nullptr : "XKBD";
}

std::int32_t XKBD_getState(const XKBD* keyboard) {
    if (keyboard == nullptr) {
        XKBD_error();
    }
    return 0;
}

std::int32_t XKBD_same(const XKBD* a, const XKBD* b) {
    return !refused(a == nullptr || b == nullptr, XKBD_error) && a == b ? 1 : 0;
}

std::int32_t XKBD_flush(const XKBD* keyboard) {
    if (keyboard == nullptr) {
        XKBD_error();
    }
    return 0;
}

void XKBD_delete(XKBD** handle) {
    const bool lacksText = handle != nullptr && *handle != nullptr && (*handle)->text == nullptr;
    const auto forget = [](const XKBD& keyboard) {
        if (&keyboard == keyboardOfProcess) {
            keyboardOfProcess = nullptr;
        }
    };
    deleteRecord(lacksText ? nullptr : handle, XKBD_error, forget, &XKBD::text);
}

void XKBD_error() {
    reportLine(XKBD_verbose, "XKBD error");
}

} // namespace velm
