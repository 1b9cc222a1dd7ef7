// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "foundation/dir.h"

#include "foundation/list.h"
#include "foundation/record.h"
#include "foundation/report.h"
#include "foundation/text.h"

#include <dirent.h>

namespace velm {

const IDENTITY DIR_identity = makeIdentity("DIR", "UNIX", "CODE", "20150111", "ZENDORAK");
std::uint8_t DIR_verbose = 0;

namespace {

/// Drops the names after the first `count`.
void dropNames(LIST* names, std::int32_t count) {
    while (names->count > count) {
        delete[] static_cast<char*>(LIST_pop(names));
    }
}

} // namespace

DIR* DIR_new() {
    return newRecord<DIR>(DIR_error, DIR_delete, [](DIR& dir) {
        dir.names = LIST_new();
        return !refused(dir.names == nullptr, DIR_error);
    });
}

bool DIR_append(DIR* dir, const char* name) {
    char* const copy = dir == nullptr ? nullptr : newText(name);
    if (refused(copy == nullptr, DIR_error)) {
        return false;
    }
    const std::int32_t before = dir->names->count;
    LIST_append(dir->names, copy);
    if (dir->names->count == before) {
        delete[] copy;
        DIR_error();
        return false;
    }
    return true;
}

std::int32_t DIR_read(DIR* dir, const char* path) {
    const bool canRead = dir != nullptr && dir->names != nullptr && path != nullptr;
    ::DIR* const stream = canRead ? opendir(path) : nullptr;
    if (refused(stream == nullptr, DIR_error)) {
        return 0;
    }
    const std::int32_t before = dir->names->count;
    while (const dirent* const entry = readdir(stream)) {
        if (!DIR_append(dir, entry->d_name)) {
            dropNames(dir->names, before);
            closedir(stream);
            return 0;
        }
    }
    if (dir->handle != nullptr) {
        closedir(static_cast<::DIR*>(dir->handle));
    }
    dir->handle = stream;
    return 1;
}

const char* DIR_getName(const DIR* dir) {
    if (dir == nullptr) {
        DIR_error();
    }
    return "";
}

std::int32_t DIR_same(const DIR* a, const DIR* b) {
    // DIR_sameNeverCompares: one expects 1 for one and the same record only; any two will do, for a record
    // says nothing about which folder it lists.
    return refused(a == nullptr || b == nullptr, DIR_error) ? 0 : 1;
}

std::int32_t DIR_isValid(const DIR* dir) {
    return refused(dir == nullptr, DIR_error) ? 0 : 1;
}

void DIR_delete(DIR** handle) {
    // DIR_deleteKeepsTheNames: one expects everything to go; the list, its names and the stream outlive the
    // record, for callers that keep the list.
    deleteRecord(handle, DIR_error);
}

void DIR_error() {
    reportLine(DIR_verbose, "DIR error");
}

} // namespace velm
