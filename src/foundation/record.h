// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What all records share: how they are made, how one of their arrays is replaced, and how they are deleted
// with what they own.
//
//     SAM* SAM_new() { return newRecord<SAM>(SAM_error); }
//     void SAM_delete(SAM** handle) {
//         deleteRecord(handle, SAM_error, &SAM::path, deletedBy(SAMPLE_delete, &SAM::sample));
//     }
#pragma once

#include "foundation/memory.h"
#include "foundation/report.h"

#include <cstdint>

namespace velm {

/// A record whose fields hold their defaults, or nullptr (reported) when memory runs out.
template <typename Record>
[[nodiscard]] Record* newRecord(void (*report)()) {
    Record* const record = allocateRecord<Record>();
    if (record == nullptr) {
        report();
    }
    return record;
}

/// The same, made whole by `complete(record)`; where that returns false, which it reports itself, the record
/// is deleted again.
template <typename Record, typename Complete>
[[nodiscard]] Record* newRecord(void (*report)(), void (*remove)(Record**), Complete complete) {
    Record* record = newRecord<Record>(report);
    if (record != nullptr && !complete(*record)) {
        remove(&record);
    }
    return record;
}

/// Puts another array in place of one that the record owns. False (reported, nothing changes) where there is
/// none: no record that could have it, or no memory.
template <typename Record, typename Element>
bool adoptArray(Record* record, void (*report)(), Element* Record::*array, Element* elements) {
    if (refused(elements == nullptr, report)) {
        return false;
    }
    delete[](record->*array);
    record->*array = elements;
    return true;
}

/// The same with `count` (>= 0) zeroed elements, and stores the count.
template <typename Record, typename Element>
bool replaceArray(Record* record, void (*report)(), Element* Record::*array, std::int32_t Record::*length,
                  std::int32_t count) {
    Element* const elements = record == nullptr ? nullptr : allocateArray<Element>(count);
    if (!adoptArray(record, report, array, elements)) {
        return false;
    }
    record->*length = count;
    return true;
}

/// An owned record of deleteRecord, which its own module deletes; nullptr is left alone.
template <typename Record, typename Part>
auto deletedBy(void (*deletePart)(Part**), Part* Record::*part) {
    return [=](Record& record) {
        if (record.*part != nullptr) {
            deletePart(&(record.*part));
        }
    };
}

/// An owned array of deleteRecord that allocateAligned made.
template <typename Record, typename Element>
auto aligned(Element* Record::*array) {
    return [=](Record& record) { freeAligned(record.*array); };
}

/// Frees one of the things that a record owns: an array, named by its member.
template <typename Record, typename Element>
void release(Record& record, Element* Record::*array) {
    delete[](record.*array);
}

/// Or anything else, by a call that takes the record.
template <typename Record, typename Release>
void release(Record& record, Release call) {
    call(record);
}

/// Frees what the record owns, in the order named, then the record, and stores nullptr in the handle. A
/// missing handle or record is reported. `owned` are members that are arrays, deletedBy for records, and
/// calls.
template <typename Record, typename... Owned>
void deleteRecord(Record** handle, void (*report)(), Owned... owned) {
    if (refused(handle == nullptr || *handle == nullptr, report)) {
        return;
    }
    (release(**handle, owned), ...);
    delete *handle;
    *handle = nullptr;
}

} // namespace velm
