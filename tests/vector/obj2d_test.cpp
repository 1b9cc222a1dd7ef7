// SPDX-FileCopyrightText: 2026 The VELM4030 developers
// SPDX-License-Identifier: MIT
#include "objects.h"
#include "support/owned.h"

namespace velm::test {
namespace {

constexpr char threeSegments[] =
    "{ name bird\n color $FF8000 s 0 0 9 9  s 40 40 3 - 4  color $11 s - 5 5 9 8 }\n";

/// Draws by the rule: every segment is copied, transformed as a segment and drawn, the last one first.
void drawPlain(const OBJ2D& obj, IMG* img) {
    SEG2D* segment = SEG2D_new();
    for (std::int32_t i = obj.segments->count - 1; i >= 0; --i) {
        SEG2D_copy(static_cast<SEG2D*>(LIST_get(obj.segments, i)), segment);
        SEG2D_scale(segment, obj.scale);
        SEG2D_rotate(segment, static_cast<std::int32_t>(obj.angle));
        SEG2D_translate(segment, obj.position);
        SEG2D_draw(segment, img);
    }
    SEG2D_delete(&segment);
}

TEST(Obj2d, OBJ2D_farthestSecondEndOnly) {
    const Objects objects(threeSegments);
    EXPECT_EQ(objects[0]->farthest, 1); // (9, 9), not (40, 40), which is a first end
    EXPECT_EQ(OBJ2D_isFarther(objects[0], 2), 1);
    EXPECT_EQ(OBJ2D_isFarther(objects[0], 1), 0);
    EXPECT_EQ(OBJ2D_isFarther(objects[0], 6), 0);
    objects[0]->farthest = 6;
    EXPECT_EQ(OBJ2D_isFarther(objects[0], 0), 1);
}

TEST(Obj2d, DrawsAsThePlainRuleWithoutAllocating) {
    const Objects objects(threeSegments);
    OBJ2D& obj = *objects[0];
    const std::string before = objects.shown();
    const Picture drawn(IMG_newSized(64, 48));
    const Picture plain(IMG_newSized(64, 48));
    Images random(4030);
    for (int round = 0; round < 200; ++round) {
        *obj.position = {random.number(0, 63), random.number(0, 47), 0};
        *obj.scale = {random.number(-2, 2), random.number(-2, 2), 0};
        obj.angle = round % 4 == 0 ? 0 : static_cast<std::uint32_t>(random.number(0, INT32_MAX));
        IMG_fill(drawn, 0);
        IMG_fill(plain, 0);
        const std::int64_t allocations = allocationCount();
        OBJ2D_draw(&obj, drawn);
        EXPECT_EQ(allocationCount(), allocations);
        drawPlain(obj, plain);
        ASSERT_EQ(difference(drawn, plain), "") << "round " << round;
    }
    EXPECT_EQ(objects.shown(), before);
}

TEST(Obj2d, OBJ2D_positionCountsTwice) {
    const Objects objects("{ s 0 0 0 0 }\n");
    objects[0]->position->x = 3;
    OBJ2D_applyPosition(objects[0]);
    OBJ2D_setColour(objects[0], 0xABCDEF);
    EXPECT_EQ(objects.shown(), "{3,0,abcdef 3,0,abcdef }");
    EXPECT_EQ(objects[0]->colour, 0xABCDEFU);
    const Picture img(IMG_new());
    OBJ2D_draw(objects[0], img);
    EXPECT_EQ(IMG_getPixel(img, 6, 0), 0xABCDEFU);
}

TEST(Obj2d, ClonesHavePointsOfTheirOwnAndShareTheName) {
    const Objects objects(threeSegments);
    objects[0]->angle = 77;
    objects[0]->farthest = 3;
    objects[0]->scale->y = 4;
    const Objects holder("}\n{ }\n"); // takes the clone in, so that it is shown and freed
    OBJ2D* clone = OBJ2D_clone(objects[0]);
    LIST_set(holder.list, 0, clone);
    EXPECT_EQ(holder.shown(), objects.shown() + "{}");
    EXPECT_EQ(clone->name, objects[0]->name);
    EXPECT_EQ(clone->angle, 77U);
    EXPECT_EQ(clone->scale->y, 4);
    EXPECT_EQ(clone->farthest, 3);
    static_cast<SEG2D*>(LIST_get(clone->segments, 2))->b->x = 1000;
    EXPECT_NE(holder.shown(), objects.shown() + "{}");
    OBJ2D_copy(clone, holder[1]); // unequal counts
    EXPECT_EQ(holder[1]->name, nullptr);
    clone->name = nullptr;
}

TEST(Obj2d, ReportsWhatIsMissing) {
    const Objects objects(threeSegments);
    VEC2D* const scale = objects[0]->scale;
    objects[0]->scale = nullptr;
    const Picture img(IMG_new());
    for (OBJ2D* obj : {static_cast<OBJ2D*>(nullptr), objects[0]}) {
        expectReports(OBJ2D_verbose, 6, "OBJ2D error", [&] {
            OBJ2D_draw(obj, img), OBJ2D_setColour(obj, 5), OBJ2D_applyPosition(obj), OBJ2D_copy(obj, obj);
            EXPECT_EQ(OBJ2D_clone(obj), nullptr);
            EXPECT_EQ(OBJ2D_isFarther(obj, 0), 0);
        });
    }
    objects[0]->scale = scale;
    expectReports(OBJ2D_verbose, 2, "OBJ2D error",
                  [&] { OBJ2D_draw(objects[0], nullptr), OBJ2D_addSegment(objects[0], nullptr); });
}

TEST(Obj2d, ACloneThatRunsOutOfMemoryIsFreed) {
    const Objects objects(threeSegments);
    VEC2D_verbose = 0;
    OBJ2D* clone = nullptr;
    std::int64_t nth = 0;
    while (clone == nullptr) {
        const FailingAllocation failing(++nth);
        clone = OBJ2D_clone(objects[0]);
    }
    VEC2D_verbose = 1;
    EXPECT_GT(nth, 17); // 8 for the object, 3 for each segment, and the lists' growth
    OBJ2D_deleteSegments(clone);
    OBJ2D_delete(&clone);
}

} // namespace
} // namespace velm::test
