// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
//
// What every effect owes: it reports what it cannot do, draws nothing outside its target, allocates nothing
// while it runs, takes all its chance from chance(), and shares nothing with its like.
//
//     expectContract<LRAIN>({LRAIN_new, LRAIN_delete, LRAIN_randomize, LRAIN_advance, LRAIN_draw},
//                           LRAIN_verbose, "LRAIN error", 3);
#pragma once

#include "foundation/chance.h"
#include "support/owned.h"

#include <functional>

namespace velm::test {

template <typename Record>
struct EffectVerbs {
    Record* (*make)();
    void (*remove)(Record**);
    void (*randomize)(Record*);
    std::function<void(Record*)> advance;
    std::function<void(Record*, IMG*)> draw;
    std::function<void(Record*)> prepare = [](Record*) {}; ///< gives a new record what it needs to be seen
};

/// `allocations` is how many a constructor makes, each of which may fail.
template <typename Record>
void expectContract(const EffectVerbs<Record>& verbs, std::uint8_t& verbose, const char* line,
                    std::int32_t allocations) {
    const auto make = [&verbs](unsigned seed) {
        chanceSeed(seed);
        Record* effect = verbs.make();
        verbs.prepare(effect);
        return effect;
    };
    Record* alone = make(1);
    Record* first = make(1);
    Record* second = make(2);
    const Picture screens[] = {Picture(IMG_newSized(96, 64)), Picture(IMG_newSized(96, 64)),
                               Picture(IMG_newSized(96, 64))};
    const Picture small[] = {Picture(IMG_newSized(1, 1)), Picture(IMG_newSized(0, 0)),
                             Picture(IMG_newSized(2, 300))};
    expectReports(verbose, allocations + 5, line, [&] {
        for (std::int32_t nth = 1; nth <= allocations; ++nth) {
            expectFailure(nth, verbs.make);
        }
        verbs.randomize(nullptr), verbs.advance(nullptr), verbs.remove(nullptr);
        verbs.draw(nullptr, screens[0]), verbs.draw(alone, nullptr);
    });
    const auto frame = [&verbs](Record* effect, IMG* screen) {
        verbs.advance(effect);
        verbs.draw(effect, screen);
    };
    const std::int64_t before = allocationCount();
    for (std::int32_t i = 0; i < 60; ++i) {
        i < 30 ? frame(alone, screens[0]) : (frame(first, screens[1]), frame(second, screens[2]));
    }
    for (std::int32_t i = 0; i < 30; ++i) {
        frame(alone, screens[0]), frame(first, screens[1]);
    }
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(difference(screens[0], screens[1]), "") << "a like effect disturbed it";
    EXPECT_NE(difference(screens[0], screens[2]), "") << "the seed changes nothing";
    for (const Picture& target : small) {
        frame(second, target);
    }
    for (Record** effect : {&alone, &first, &second}) {
        verbs.remove(effect);
        EXPECT_EQ(*effect, nullptr);
    }
}

} // namespace velm::test
