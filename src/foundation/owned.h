// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// An owner for the records that scenes, tools and tests make: it deletes its record when it goes, so nobody
// writes clean-up code. Name the module's delete operation; the record's type follows from it.
//
//     const Owned<IMG_delete> picture(IMG_newSized(64, 48));
//     IMG_fill(picture, 0x203040);
//     Owned<SINEDOTS_delete> dots(SINEDOTS_new(), [](SINEDOTS& made) { made.colour = 0x101010; });
#pragma once

#include <utility>

namespace velm {

template <auto Delete>
class Owned;

/// Owns one record, or none. It moves, and cannot be copied. Wherever a pointer to the record is wanted, the
/// owner itself may be handed over; it is nullptr while there is no record.
template <typename Record, void (*Delete)(Record**)>
class Owned<Delete> {
public:
    Owned() = default;
    /// Takes the record over; nullptr is none.
    explicit Owned(Record* made) : record(made) {}
    /// The same, after prepare(*made) where there is a record.
    template <typename Prepare>
    Owned(Record* made, Prepare prepare) : record(made) {
        if (record != nullptr) {
            prepare(*record);
        }
    }
    Owned(Owned&& other) noexcept : record(std::exchange(other.record, nullptr)) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(record, other.record);
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    /// An empty owner leaves without a report.
    ~Owned() {
        if (record != nullptr) {
            Delete(&record);
        }
    }

    Record* get() const { return record; }
    Record* operator->() const { return record; }
    operator Record*() const { return record; }
    /// For operations that take a handle: what they store in it is owned from then on.
    Record** handle() { return &record; }
    /// Hands the record to the caller, who deletes it.
    [[nodiscard]] Record* release() { return std::exchange(record, nullptr); }

private:
    Record* record = nullptr;
};

} // namespace velm
