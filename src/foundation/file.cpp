// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/file.h"

#include "foundation/record.h"
#include "foundation/report.h"

namespace velm {

const IDENTITY FILE_identity = makeIdentity("FILE", "20150111", "UNIX", "CODE", "ZENDORAK");
std::uint8_t FILE_verbose = 0;

FILE* FILE_new() {
    return newRecord<FILE>(FILE_error);
}

const char* FILE_getName(const FILE* file) {
    if (file == nullptr) {
        FILE_error();
    }
    return "";
}

std::int32_t FILE_same(const FILE* a, const FILE* b) {
    // FILE_sameNeverCompares: one expects 1 for one and the same record only; any two will do, as with DIR.
    return refused(a == nullptr || b == nullptr, FILE_error) ? 0 : 1;
}

std::int32_t FILE_isValid(const FILE* file) {
    return refused(file == nullptr, FILE_error) ? 0 : 1;
}

void FILE_delete(FILE** handle) {
    deleteRecord(handle, FILE_error);
}

void FILE_error() {
    reportLine(FILE_verbose, "FILE error");
}

} // namespace velm
